#include <QTest>

#include "cli/CliTests.h"
#include "cli/Workshop.h"

using namespace Qt::StringLiterals;

class NewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void makesAnEmptyDocumentOfEachType_data() {
        QTest::addColumn<QString>("extension");
        QTest::addColumn<QString>("recordClass");
        QTest::addColumn<int>("version");
        const auto row = [](const char* type, const char* extension, const char* recordClass, int version) {
            QTest::newRow(type) << QString::fromLatin1(extension) << QString::fromLatin1(recordClass)
                                << version;
        };
        row("Carnet de plongee", "carnet", "Plongee", 27);
        row("Divers documents", "documents", "DiversDocs", 1);
        row("Materiel", "materiel", "Materiel", 5);
        row("Rebreather", "rebreather", "Rebreather", 4);
        row("Consommables", "consommables", "Consommables", 3);
        row("Compresseur", "compresseur", "Compresseur", 1);
        row("Epaves", "epaves", "Epaves", 6);
        row("Budget", "budget", "Budget", 1);
        row("Entreprises", "entreprises", "Entreprises", 3);
        row("Structures", "structures", "Structures", 0);
    }
    void makesAnEmptyDocumentOfEachType() {
        QFETCH(QString, extension);
        QFETCH(QString, recordClass);
        QFETCH(int, version);
        const QString type = QString::fromLatin1(QTest::currentDataTag());
        const QString name = u"mine."_s + extension;
        const Workshop shop;
        const Outcome outcome = shop.run({u"new"_s, type, name});
        QCOMPARE(outcome.errors, QString());
        QCOMPARE(outcome.output, QByteArray());
        QCOMPARE(outcome.status, 0);
        QCOMPARE(shop.folder().names(), QStringList(name));
        QCOMPARE(shop.folder().content(name), golden::bytes(u"empty.carnet"_s));
        const QJsonObject wanted{{u"type"_s, type}, {u"class"_s, recordClass}, {u"records"_s, 0},
                                 {u"size"_s, 67},   {u"version"_s, version},   {u"first"_s, {}},
                                 {u"last"_s, {}}};
        QCOMPARE(shop.run({u"info"_s, name, u"--json"_s}).json(), wanted);
    }

    void aFileThatIsThereIsLeftAlone_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("a file") << u"a.carnet"_s;
        QTest::newRow("a folder") << u"folder"_s;
        QTest::newRow("a file with its folder") << u"./folder/../a.carnet"_s;
    }
    void aFileThatIsThereIsLeftAlone() {
        QFETCH(QString, name);
        const Workshop shop;
        shop.put(u"a.carnet"_s, "precious");
        QVERIFY(QDir(shop.folder().path()).mkdir(u"folder"_s));
        const auto before = shop.everything();
        const Outcome outcome = shop.run({u"new"_s, u"Carnet de plongee"_s, name, u"--yes"_s});
        QCOMPARE(outcome.status, 1);
        QCOMPARE(outcome.output, QByteArray());
        QVERIFY2(isOneSentence(outcome.errors) && outcome.errors.contains(name), qPrintable(outcome.errors));
        QCOMPARE(shop.everything(), before);
    }

    void aFileInNoFolderIsAFailure() {
        const Workshop shop;
        const Outcome outcome = shop.run({u"new"_s, u"Epaves"_s, u"nowhere/a.epaves"_s});
        QCOMPARE(outcome.status, 1);
        QVERIFY2(isOneSentence(outcome.errors) && outcome.errors.contains("a.epaves"_L1),
                 qPrintable(outcome.errors));
        QVERIFY(shop.everything().isEmpty());
    }
};

int runNewTest(int argc, char** argv) {
    NewTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "NewTest.moc"
