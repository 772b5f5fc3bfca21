#include <sys/stat.h>

#include <QRegularExpression>
#include <QTest>

#include "platform/archive/ArchiveError.h"
#include "platform/document/DocumentTests.h"
#include "platform/document/Sentences.h"
#include "platform/files/Folder.h"
#include "support/Golden.h"
#include "support/TestDesk.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

/// Puts something that is no document at a name in a folder, and answers its path.
using Obstacle = QString (*)(const Folder&);

QString put(const Folder& folder, const QByteArray& bytes) {
    folder.put(u"bad.carnet"_s, bytes);
    return folder.path(u"bad.carnet"_s);
}

QString fifo(const Folder& folder) {
    const QString path = folder.path(u"bad.carnet"_s);
    return ::mkfifo(QFile::encodeName(path).constData(), 0600) == 0 ? path : QString();
}

QString inner(const Folder& folder) {
    QDir(folder.path()).mkdir(u"bad.carnet"_s);
    return folder.path(u"bad.carnet"_s);
}

}  // namespace

Q_DECLARE_METATYPE(Obstacle)

class BadInputTest : public QObject {
    Q_OBJECT

    TestDesk _desk;

    /// The sentence in which opening the file ends.
    QString refusal(const QString& path) {
        try {
            DocumentController(_desk.kinds, _desk.desk).read(path);
        } catch (const ReadError& error) {
            return error.sentence();
        } catch (const DocumentError& error) {
            return sentenceOf(error);
        }
        return {};
    }

private Q_SLOTS:
    void isToldInOneSentenceThatNamesTheFile_data() {
        QTest::addColumn<Obstacle>("obstacle");
        QTest::addColumn<QString>("reason");
        const auto row = [](const char* name, const QString& reason, Obstacle obstacle) {
            QTest::newRow(name) << obstacle << reason;
        };
        row("missing", u"there is no such file"_s,
            [](const Folder& folder) { return folder.path(u"bad.carnet"_s); });
        row("pipe that nobody writes to", u"pipe or a device"_s, fifo);
        row("folder", u"it is a folder"_s, inner);
        row("endless device", u"pipe or a device"_s, [](const Folder&) { return u"/dev/zero"_s; });
        row("empty", u": byte 0: "_s, [](const Folder& folder) { return put(folder, ""); });
        row("text", u": byte "_s,
            [](const Folder& folder) { return put(folder, "A text, not an archive.\n"); });
        row("zeros", u": byte "_s,
            [](const Folder& folder) { return put(folder, QByteArray(100000, '\0')); });
        row("head only", u": byte "_s,
            [](const Folder& folder) { return put(folder, golden::bytes(u"empty.carnet"_s).left(16)); });
        row("half", u": byte "_s, [](const Folder& folder) {
            return put(folder, golden::bytes(u"plongee-v27.carnet"_s).left(3000));
        });
        row("count beyond the file", u": byte "_s, [](const Folder& folder) {
            // The count 0 stands before the last byte.
            QByteArray bytes = golden::bytes(u"empty.carnet"_s);
            return put(folder, bytes.chopped(2) + QByteArray("\x82\xff\xff\xff\x7f\x86", 6));
        });
        row("picture", u": byte "_s, [](const Folder& folder) { return put(folder, "\x89PNG\r\n\x1a\n"); });
    }
    void isToldInOneSentenceThatNamesTheFile() {
        QFETCH(Obstacle, obstacle);
        QFETCH(QString, reason);
        const Folder folder;
        const QString path = obstacle(folder);
        QVERIFY(!path.isEmpty());
        const QString sentence = refusal(path);
        QVERIFY2(sentence.contains(path.section(u'/', -1)), qPrintable(sentence));
        QVERIFY2(sentence.contains(reason), qPrintable(sentence));
        QVERIFY(!sentence.contains(u'\n'));
    }

    void whatIsWrongIsToldInTheLanguageOfTheProgram_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("french");
        QTest::newRow("empty")
            << QByteArray("")
            << u"0\u00a0: attendu\u00a0: une archive\u00a0; trouvé\u00a0: la fin du fichier."_s;
        QTest::newRow("other start")
            << QByteArray("<html/>")
            << u"0\u00a0: attendu\u00a0: la version d’archiveur 4\u00a0; trouvé\u00a0: la version 60."_s;
        // 04 version, 0b length, then 9 of the 11 letters.
        QTest::newRow("words within words")
            << QByteArray("\x04\x0bstreamtyp")
            << u"2\u00a0: attendu\u00a0: une signature (octets\u00a0: 11)\u00a0; trouvé\u00a0: la fin du fichier après 9 octets."_s;
    }
    void whatIsWrongIsToldInTheLanguageOfTheProgram() {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, french);
        const Folder folder;
        const QString path = put(folder, bytes);
        const Strings strings(Strings::Language::French);
        QString told;
        try {
            DocumentController(_desk.kinds, _desk.desk).read(path);
        } catch (const DocumentError& error) {
            told = sentenceIn(strings, error);
        }
        QCOMPARE(told, path + u": Il est abîmé à l’octet "_s + french);
    }

    void theRecordAndTheSlotAreToldInEveryLanguage() {
        const Folder folder;
        // Cut within the seven lists of the first dive.
        const QString path = put(folder, golden::bytes(u"plongee-v27.carnet"_s).left(200));
        for (const Strings::Language language : {Strings::Language::English, Strings::Language::French}) {
            const Strings strings(language);
            QString told;
            try {
                DocumentController(_desk.kinds, _desk.desk).read(path);
            } catch (const DocumentError& error) {
                told = sentenceIn(strings, error);
            }
            static const QRegularExpression place(
                u" \\(Plongee 0, (profilProfondeur|ASC_Flag|SLOW_Flag|SURF_Flag|CEIL_Flag|GAZ_Flag)\\)\\.$"_s);
            QVERIFY2(told.contains(place), qPrintable(told));
        }
    }

    void aFileThatMayNotBeReadIsTold() {
        const Folder folder;
        const QString path = put(folder, golden::bytes(u"empty.carnet"_s));
        QVERIFY(::chmod(QFile::encodeName(folder.path()).constData(), 0755) == 0);
        QVERIFY(::chmod(QFile::encodeName(path).constData(), 0) == 0);
        QString sentence;
        {
            const OrdinaryPerson person;
            sentence = refusal(path);
        }
        QVERIFY2(sentence.contains(u"bad.carnet"_s) && sentence.contains(u"you may not read it"_s),
                 qPrintable(sentence));
    }

    void everyArchiveThatMustBeRefusedIs_data() {
        QTest::addColumn<QString>("file");
        for (const QString& file : golden::files(u"refused-*.carnet"_s))
            QTest::newRow(qPrintable(file)) << file;
    }
    void everyArchiveThatMustBeRefusedIs() {
        QFETCH(QString, file);
        const QString path = golden::path(file);
        const QString sentence = refusal(path);
        QVERIFY2(sentence.startsWith(path + u": "_s), qPrintable(sentence));
        QVERIFY(!sentence.contains(u'\n'));
    }
};

int runBadInputTest(int argc, char** argv) {
    BadInputTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "BadInputTest.moc"
