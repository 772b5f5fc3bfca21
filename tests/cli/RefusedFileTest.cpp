#include <sys/stat.h>

#include <QTest>

#include "cli/CliTests.h"
#include "cli/Workshop.h"

using namespace Qt::StringLiterals;

class RefusedFileTest : public QObject {
    Q_OBJECT

    /// A folder with one bad file of each sort.
    static void fill(const Workshop& shop) {
        shop.put(u"empty.carnet"_s, {});
        shop.put(u"cut.carnet"_s, golden::bytes(u"plongee-v27.carnet"_s).left(5000));
        shop.put(u"too long.carnet"_s, golden::bytes(u"plongee-v27.carnet"_s) + 'x');
        shop.put(u"foreign.carnet"_s, "\x89PNG\r\n\x1a\n a picture, say");
        shop.putGolden(u"refused-root-dive.carnet"_s, u"no list.carnet"_s);
        shop.putGolden(u"refused-class-foo.carnet"_s, u"other class.carnet"_s);
        QVERIFY(QDir(shop.folder().path()).mkdir(u"folder.carnet"_s));
        QCOMPARE(::mkfifo(QFile::encodeName(shop.folder().path(u"pipe.carnet"_s)).constData(), 0600), 0);
    }

private Q_SLOTS:
    void noCommandTakesIt_data() {
        QTest::addColumn<QStringList>("words");
        const QStringList lines{u"info %"_s,
                                u"info % --json"_s,
                                u"dump %"_s,
                                u"dump % --as Budget"_s,
                                u"load % -o out.carnet"_s,
                                u"add % bateau=x"_s,
                                u"set % --row 0 bateau=x"_s,
                                u"form %"_s,
                                u"form % --row 0 --json"_s,
                                u"delete % --row 0 --yes"_s,
                                u"renumber % --from 1"_s,
                                u"find % --in notes x"_s,
                                u"export % --type udcf -o out"_s};
        for (const QString& line : lines) QTest::newRow(qPrintable(line)) << line.split(u' ');
    }
    void noCommandTakesIt() {
        QFETCH(QStringList, words);
        const Workshop shop;
        fill(shop);
        const auto before = shop.everything();
        for (const QString& name : shop.folder().names() + QStringList(u"missing.carnet"_s)) {
            QStringList line = words;
            line.replace(1, name);
            const Outcome outcome = shop.run(line);
            QVERIFY2(outcome.status == 1, qPrintable(name));
            QCOMPARE(outcome.output, QByteArray());
            QVERIFY2(isOneSentence(outcome.errors) && outcome.errors.contains(name),
                     qPrintable(outcome.errors));
            QCOMPARE(shop.everything(), before);
        }
    }

    void aRowThatIsNotThereIsRefused_data() {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("row");
        const auto row = [](const QString& line, const QString& wrong) {
            QTest::newRow(qPrintable(line)) << line << wrong;
        };
        row(u"set % --row 2 bateau=x"_s, u"2"_s);
        row(u"set % --row -1 bateau=x"_s, u"-1"_s);
        row(u"form % --row 2"_s, u"2"_s);
        row(u"delete % --row 2 --yes"_s, u"2"_s);
        row(u"delete % --yes --row 0 1 7"_s, u"7"_s);
        row(u"delete % --yes --row -1 --row 0"_s, u"-1"_s);
    }
    void aRowThatIsNotThereIsRefused() {
        QFETCH(QString, line);
        QFETCH(QString, row);
        const QString name = u"at_50%1_%2.carnet"_s;
        const Workshop shop;
        shop.putLogbook(name, {dive({{u"noPlongee"_s, 1}}), dive({{u"noPlongee"_s, 2}})});
        const auto before = shop.everything();
        QStringList words = line.split(u' ');
        words.replace(1, name);
        const Outcome outcome = shop.run(words);
        QCOMPARE(outcome.status, 1);
        QCOMPARE(outcome.output, QByteArray());
        QVERIFY2(isOneSentence(outcome.errors), qPrintable(outcome.errors));
        QVERIFY2(outcome.errors.contains(name + u": there is no row "_s + row + u';'),
                 qPrintable(outcome.errors));
        QCOMPARE(shop.everything(), before);
    }

    void whatOnlyLogbooksDoIsRefusedForARegister_data() {
        QTest::addColumn<QString>("line");
        for (const auto& line : {u"renumber a.budget --from 1"_s, u"find a.budget --in notes x"_s,
                                 u"export a.budget --type csv-comma -o out"_s})
            QTest::newRow(qPrintable(line)) << line;
    }
    void whatOnlyLogbooksDoIsRefusedForARegister() {
        QFETCH(QString, line);
        const Workshop shop;
        shop.putGolden(u"budget-v1.budget"_s, u"a.budget"_s);
        const auto before = shop.everything();
        const Outcome outcome = shop.run(line.split(u' '));
        QCOMPARE(outcome.status, 1);
        QVERIFY2(isOneSentence(outcome.errors) && outcome.errors.contains("a.budget"_L1),
                 qPrintable(outcome.errors));
        QCOMPARE(shop.everything(), before);
    }
};

int runRefusedFileTest(int argc, char** argv) {
    RefusedFileTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "RefusedFileTest.moc"
