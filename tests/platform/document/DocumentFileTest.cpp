#include <QSignalSpy>
#include <QTest>

#include "platform/document/DocumentTests.h"
#include "platform/files/Folder.h"
#include "support/Failure.h"
#include "support/TestDesk.h"

using namespace sargan;
using namespace Qt::StringLiterals;
using documenttest::SampleDocument;
using documenttest::sampleKind;

namespace {

const QString name = u"a.sample"_s;

using Damage = std::function<QByteArray(QByteArray)>;

}  // namespace

Q_DECLARE_METATYPE(Damage)

class DocumentFileTest : public QObject {
    Q_OBJECT

    TestDesk _desk;
    std::unique_ptr<Folder> _folder;
    std::unique_ptr<SampleDocument> _document;

    QString path() const { return _folder->path(name); }
    QByteArray onDisk() const { return _folder->content(name); }
    QByteArray bytes() { return _document->dataRepresentationOfType(u"Samples"_s); }
    /// Every name in the folder but the lock's.
    QStringList names() const {
        QStringList all = _folder->names();
        all.removeAll(u"."_s + name + u".lock"_s);
        return all;
    }

private Q_SLOTS:
    void init() {
        _folder = std::make_unique<Folder>();
        _document = std::make_unique<SampleDocument>(sampleKind(), _desk.desk);
        _document->append(1);
    }
    void cleanup() {
        _document.reset();
        QCOMPARE(_desk.prompt.finish(), QStringList());
    }

    void saveAsMakesTheFileItsOwn() {
        QSignalSpy told(_document.get(), &Document::fileChanged);
        _document->setUntitledName(u"Untitled 2"_s);
        QCOMPARE(_document->displayName(), u"Untitled 2"_s);
        _document->saveAs(path());
        QCOMPARE(onDisk(), bytes());
        QCOMPARE(_document->path(), path());
        QCOMPARE(_document->displayName(), name);
        QVERIFY(_document->lock);
        QCOMPARE(told.size(), 1);
        QCOMPARE(names(), QStringList({name}));
    }

    void eachSaveKeepsThePreviousVersion() {
        _document->saveAs(path());
        const QByteArray first = onDisk();
        _document->append(2);
        _document->save();
        QCOMPARE(onDisk(), bytes());
        QCOMPARE(_folder->content(name + u'~'), first);
        QCOMPARE(names(), QStringList({name, name + u'~'}));
    }

    void readingMakesNoLockAndNoEdit() {
        _document->saveAs(path());
        SampleDocument other(sampleKind(), _desk.desk);
        other.readFrom(path());
        QCOMPARE(other.numbers(), QList<int>({1}));
        QCOMPARE(other.path(), path());
        QVERIFY(!other.isEdited() && !other.lock);
    }

    void aFileChangedOnDiskIsNotOverwrittenUnasked() {
        _document->saveAs(path());
        _document->append(2);
        _folder->put(name, "someone else's");
        const auto error = failureOf<SaveError>([&] { _document->save(); });
        QVERIFY(error);
        QCOMPARE(error->reason(), SaveProblem::ChangedOnDisk);
        QCOMPARE(onDisk(), QByteArray("someone else's"));
        QVERIFY(_document->isEdited());
        _document->save(true);
        QCOMPARE(onDisk(), bytes());
        QCOMPARE(_folder->content(name + u'~'), QByteArray("someone else's"));
        QVERIFY(!_document->isEdited());
        _document->append(3);
        _document->save();
    }

    void aFileThatDisappearedIsWrittenAnew() {
        _document->saveAs(path());
        QVERIFY(QFile::remove(path()));
        _document->append(2);
        _document->save();
        QCOMPARE(onDisk(), bytes());
    }

    void aVanishedFolderFailsAndTheDocumentStays() {
        QVERIFY(QDir(_folder->path()).mkdir(u"inner"_s));
        const QString inner = _folder->path(u"inner/a.sample"_s);
        _document->saveAs(inner);
        QVERIFY(QDir(_folder->path(u"inner"_s)).removeRecursively());
        _document->append(2);
        const auto error = failureOf<SaveError>([&] { _document->save(); });
        QVERIFY(error);
        QCOMPARE(error->reason(), SaveProblem::NoFolder);
        QVERIFY(_document->isEdited());
        QCOMPARE(_document->path(), inner);
        QCOMPARE(_document->numbers(), QList<int>({1, 2}));
    }

    void aFolderAtThatNameIsLeftAlone() {
        QVERIFY(QDir(_folder->path()).mkdir(name));
        const auto error = failureOf<SaveError>([&] { _document->saveAs(path()); });
        QVERIFY(error);
        QCOMPARE(error->reason(), SaveProblem::NotAFile);
        QVERIFY(_document->path().isEmpty() && _document->isEdited() && !_document->lock);
        QVERIFY(QFileInfo(path()).isDir());
    }

    void whatDoesNotReadBackIsNotWritten_data() {
        QTest::addColumn<Damage>("damage");
        const auto row = [](const char* what, Damage damage) { QTest::newRow(what) << damage; };
        row("nothing", [](QByteArray) { return QByteArray(); });
        row("cut", [](QByteArray good) { return good.chopped(1); });
        row("no archive", [](QByteArray) { return QByteArray("words"); });
        row("another value", [](QByteArray good) { return good.replace(char(1), char(2)); });
        row("no records", [](QByteArray) { return writeRecords<Sample>({}, sampleClass()); });
        row("a record more", [](QByteArray) {
            const auto blank = std::make_shared<const Sample>();
            return writeRecords<Sample>({blank, blank}, sampleClass());
        });
    }
    void whatDoesNotReadBackIsNotWritten() {
        QFETCH(Damage, damage);
        _document->saveAs(path());
        const QByteArray before = onDisk();
        _document->append(2);
        _document->damage = damage;
        QString sentence;
        try {
            _document->save();
        } catch (const DocumentError& error) {
            sentence = sentenceOf(error);
        }
        QCOMPARE(sentence, path() +
                               u": what would be written does not read back as this document, so nothing "
                               "was written"_s);
        QCOMPARE(onDisk(), before);
        QCOMPARE(names(), QStringList({name}));
        QVERIFY(_document->isEdited());
    }

    void exportsLeaveTheDocumentAsItIs() {
        _document->exportTo(_folder->path(u"out.txt"_s), u"Words"_s);
        QCOMPARE(_folder->content(u"out.txt"_s), QByteArray("words"));
        QVERIFY(_document->isEdited() && _document->path().isEmpty());
        const auto error =
            failureOf<DocumentError>([&] { _document->exportTo(_folder->path(u"x.txt"_s), u"No such"_s); });
        QVERIFY(error);
        QCOMPARE(sentenceOf(*error), _folder->path(u"x.txt"_s) + u": there is no export type \"No such\""_s);
        QCOMPARE(_folder->names(), QStringList({u"out.txt"_s}));
    }

    void revertReadsAgainAndCanBeUndone() {
        _document->saveAs(path());
        _document->append(2);
        _document->revert();
        QCOMPARE(_document->numbers(), QList<int>({1}));
        QVERIFY(!_document->isEdited());
        QCOMPARE(_document->undoName(), u"Revert"_s);
        _document->undo();
        QCOMPARE(_document->numbers(), QList<int>({1, 2}));
        QVERIFY(_document->isEdited());
        _document->redo();
        QVERIFY(!_document->isEdited());
    }

    void revertTakesWhatSomeoneElseSaved() {
        _document->saveAs(path());
        SampleDocument other(sampleKind(), _desk.desk);
        other.readFrom(path());
        other.append(7);
        other.save();
        _document->revert();
        QCOMPARE(_document->numbers(), QList<int>({1, 7}));
        _document->append(8);
        _document->save();  // it is the file that was read
    }

    void aRevertThatFailsChangesNothing() {
        QVERIFY(failureOf<DocumentError>([&] { _document->revert(); }));
        _document->saveAs(path());
        _document->append(2);
        _folder->put(name, "damaged");
        const auto error = failureOf<DocumentError>([&] { _document->revert(); });
        QVERIFY(error);
        QVERIFY(sentenceOf(*error).startsWith(path() + u": byte "_s));
        QCOMPARE(_document->numbers(), QList<int>({1, 2}));
        QVERIFY(_document->isEdited());
        QCOMPARE(_document->undoName(), u"Append 2"_s);
    }

    void aDocumentToLookAtIsNotSavedOverItsFile() {
        _document->saveAs(path());
        SampleDocument view(sampleKind(), _desk.desk);
        view.readFrom(path());
        view.setReadOnly(true);
        const auto error = failureOf<DocumentError>([&] { view.save(); });
        QVERIFY(error);
        QVERIFY(sentenceOf(*error).startsWith(path()));
        QVERIFY(failureOf<DocumentError>([&] { view.saveAs(path()); }));
        QCOMPARE(names(), QStringList({name}));
        view.saveAs(_folder->path(u"b.sample"_s));
        QVERIFY(!view.isReadOnly());
        QCOMPARE(view.path(), _folder->path(u"b.sample"_s));
    }

    void aCopyIsEditedUntilItIsSaved() {
        _document->saveAs(path());
        QSignalSpy told(_document.get(), &Document::editedChanged);
        _document->detachFromFile();
        QVERIFY(_document->path().isEmpty() && !_document->lock && _document->isEdited());
        QCOMPARE(told.size(), 1);
        _document->append(2);
        _document->undo();
        QVERIFY(_document->isEdited());
        _document->saveAs(_folder->path(u"b.sample"_s));
        QVERIFY(!_document->isEdited());
        QCOMPARE(_folder->content(u"b.sample"_s), onDisk());
    }

    void aRelativePathIsKeptWhole() {
        const QString was = QDir::currentPath();
        QVERIFY(QDir::setCurrent(_folder->path()));
        _document->saveAs(name);
        QVERIFY(QDir::setCurrent(was));
        QCOMPARE(QFileInfo(_document->path()).canonicalFilePath(), QFileInfo(path()).canonicalFilePath());
        QVERIFY(QFileInfo(_document->path()).isAbsolute());
    }
};

int runDocumentFileTest(int argc, char** argv) {
    DocumentFileTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DocumentFileTest.moc"
