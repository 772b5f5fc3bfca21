#include <QSet>
#include <QTest>

#include "FileTests.h"
#include "platform/files/ReadError.h"
#include "platform/files/SaveError.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class FileMessageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fillsPlaceholders_data() {
        QTest::addColumn<QString>("format");
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("text");
        QTest::newRow("none") << u"plain"_s << QStringList{} << u"plain"_s;
        QTest::newRow("two") << u"%@ in %@."_s << QStringList{u"a"_s, u"b"_s} << u"a in b."_s;
        QTest::newRow("too few") << u"%@ in %@."_s << QStringList{u"a"_s} << u"a in ."_s;
        QTest::newRow("too many") << u"%@."_s << QStringList{u"a"_s, u"b"_s} << u"a."_s;
        QTest::newRow("placeholder inside") << u"%@ %@"_s << QStringList{u"%@"_s, u"b"_s} << u"%@ b"_s;
    }
    void fillsPlaceholders() {
        QFETCH(QString, format);
        QFETCH(QStringList, arguments);
        QFETCH(QString, text);
        QCOMPARE((FileMessage{{}, format, arguments}).text(), text);
    }

    void everySaveProblemHasItsSentence() {
        QSet<QString> keys;
        for (int i = 0; i <= static_cast<int>(SaveProblem::NotDurable); ++i) {
            const SaveError error(static_cast<SaveProblem>(i), u"/sea/my dives"_s, ENOSPC);
            const QString sentence = error.sentence();
            QVERIFY(sentence.contains(u"my dives"));
            QVERIFY(!sentence.contains(u"%@"));
            QCOMPARE(QString::fromUtf8(error.what()), sentence);
            const bool says = sentence.contains(u"unchanged") || sentence.contains(u"Nothing was changed");
            QCOMPARE(says, !error.replaced());
            keys.insert(error.message().key);
        }
        QCOMPARE(keys.size(), SaveError::allMessages().size());
        QCOMPARE(keys.size(), static_cast<int>(SaveProblem::NotDurable) + 1);
    }

    void everyReadProblemHasItsSentence() {
        QSet<QString> keys;
        for (int i = 0; i <= static_cast<int>(ReadProblem::Io); ++i) {
            const ReadError error(static_cast<ReadProblem>(i), u"/sea/my dives"_s, EIO);
            QVERIFY(error.sentence().contains(u"my dives"));
            QVERIFY(!error.sentence().contains(u"%@"));
            keys.insert(error.message().key);
        }
        QCOMPARE(keys.size(), ReadError::allMessages().size());
        QCOMPARE(keys.size(), static_cast<int>(ReadProblem::Io) + 1);
    }

    void passesAsManyArgumentsAsPlaceholders() {
        for (int i = 0; i <= static_cast<int>(SaveProblem::NotDurable); ++i) {
            const FileMessage message = SaveError(static_cast<SaveProblem>(i), u"/sea/x"_s, EIO).message();
            QCOMPARE(message.arguments.size(), message.format.count(u"%@"));
        }
    }
};

int runFileMessageTest(int argc, char** argv) {
    FileMessageTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "FileMessageTest.moc"
