#include <QSignalSpy>
#include <QTest>

#include "platform/archive/ArchiveError.h"
#include "platform/document/DocumentTests.h"
#include "platform/files/Folder.h"
#include "support/Failure.h"
#include "support/Golden.h"
#include "support/TestDesk.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class DocumentControllerTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Folder> _folder;
    std::unique_ptr<TestDesk> _desk;
    std::unique_ptr<DocumentController> _controller;

    QString put(const QString& name, const QString& golden) {
        _folder->put(name, golden::bytes(golden));
        return _folder->path(name);
    }
    const DocumentKind& kind(const char* typeName) {
        return *_desk->kinds.named(QString::fromLatin1(typeName), _desk->desk);
    }

private Q_SLOTS:
    void init() {
        _folder = std::make_unique<Folder>();
        _desk = std::make_unique<TestDesk>();
        _controller = std::make_unique<DocumentController>(_desk->kinds, _desk->desk);
    }
    void cleanup() {
        _controller.reset();
        QCOMPARE(_desk->prompt.finish(), QStringList());
    }

    void theDefaultTypeIsTheLogbook_data() {
        QTest::addColumn<QString>("language");
        QTest::newRow("English") << u"en"_s;
        QTest::newRow("French") << u"fr"_s;
        QTest::newRow("keys") << u"keys"_s;
    }
    void theDefaultTypeIsTheLogbook() {
        QFETCH(QString, language);
        _desk->strings.setLanguage(*Strings::languageNamed(language));
        QCOMPARE(_controller->defaultType(), _desk->strings.text({"Main", "Carnet de plongee"}));
        Document* document = _controller->openUntitledDocument();
        QVERIFY(qobject_cast<Carnet*>(document));
        QVERIFY(!document->isEdited() && document->path().isEmpty());
    }

    void aSetDefaultTypeIsTheOneUntilItIsCleared() {
        _controller->setDefaultType(u"Budget"_s);
        QCOMPARE(_controller->defaultType(), u"Budget"_s);
        QCOMPARE(_controller->openUntitledDocument()->kind().documentClass, "PreviBudget");
        QCOMPARE(_controller->openUntitledDocument()->kind().documentClass, "PreviBudget");
        _controller->setDefaultType(std::nullopt);
        QVERIFY(qobject_cast<Carnet*>(_controller->openUntitledDocument()));
        _controller->setDefaultType(u"No such type"_s);
        QVERIFY(!_controller->openUntitledDocument());
    }

    void newDocumentLeavesNoDefaultTypeBehind() {
        for (const DocumentKind& each : _desk->kinds.all()) {
            Document* document = _controller->newDocument(each);
            QVERIFY(document);
            QCOMPARE(&document->kind(), &each);
            QCOMPARE(_controller->defaultType(), kind("Carnet de plongee").currentTypeName(_desk->desk));
        }
        QCOMPARE(_controller->documents().size(), _desk->kinds.all().size());
        _controller->setDefaultType(u"Epaves"_s);
        _controller->newDocument(kind("Budget"));
        QCOMPARE(_controller->defaultType(), kind("Carnet de plongee").currentTypeName(_desk->desk));
    }

    void untitledDocumentsAreNumbered() {
        QStringList names;
        for (int i = 0; i < 3; ++i) names << _controller->openUntitledDocument()->displayName();
        QCOMPARE(names, QStringList({u"Untitled"_s, u"Untitled 2"_s, u"Untitled 3"_s}));
    }

    void thereAreTenKindsWithTheirWords_data() {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("extension");
        QTest::addColumn<QString>("documentClass");
        QTest::addColumn<bool>("isLocalised");
        const auto row = [](const char* type, const char* extension, const char* documentClass,
                            bool localised) {
            QTest::newRow(type) << QString::fromLatin1(type) << QString::fromLatin1(extension)
                                << QString::fromLatin1(documentClass) << localised;
        };
        row("Carnet de plongee", "carnet", "Carnet", true);
        row("Divers documents", "documents", "DiversDocuments", true);
        row("Materiel", "materiel", "InvMateriel", true);
        row("Rebreather", "rebreather", "RebreatherServ", true);
        row("Consommables", "consommables", "InvConso", false);
        row("Compresseur", "compresseur", "MaintComp", false);
        row("Epaves", "epaves", "RepEpaves", false);
        row("Budget", "budget", "PreviBudget", false);
        row("Entreprises", "entreprises", "AdressesEts", false);
        row("Structures", "structures", "AdressesStruct", false);
    }
    void thereAreTenKindsWithTheirWords() {
        QFETCH(QString, type);
        QFETCH(QString, extension);
        QFETCH(bool, isLocalised);
        QCOMPARE(_desk->kinds.all().size(), 10u);
        const DocumentKind* found = _desk->kinds.named(type, _desk->desk);
        QVERIFY(found);
        QTEST(QString::fromLatin1(found->documentClass), "documentClass");
        QCOMPARE(&_desk->kinds.forExtension(u"/somewhere/x."_s + extension), found);
        QCOMPARE(&_desk->kinds.forExtension(u"X."_s + extension.toUpper()), found);
        _desk->strings.setLanguage(Strings::Language::French);
        const QString french = _desk->strings.lookup(type.toLatin1(), "error !", "Main");
        QCOMPARE(found->currentTypeName(_desk->desk), isLocalised ? french : type);
        QCOMPARE(_desk->kinds.named(found->currentTypeName(_desk->desk), _desk->desk), found);
    }

    void aKindIsKnownByContentThenByExtension_data() {
        QTest::addColumn<QString>("golden");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("type");
        const auto row = [](const char* what, const QString& golden, const QString& name, const char* type) {
            QTest::newRow(what) << golden << name << QString::fromLatin1(type);
        };
        const QString logbook = u"plongee-v26.carnet"_s;
        row("logbook", logbook, u"a.carnet"_s, "Carnet de plongee");
        row("logbook called a budget", logbook, u"a.budget"_s, "Carnet de plongee");
        row("logbook called nothing", logbook, u"a"_s, "Carnet de plongee");
        row("budget", u"budget-v1.budget"_s, u"a.budget"_s, "Budget");
        row("budget called a logbook", u"budget-v1.budget"_s, u"a.carnet"_s, "Budget");
        row("wrecks called a photograph", u"epaves-v6.epaves"_s, u"a.JPEG"_s, "Epaves");
        row("empty logbook", u"empty.carnet"_s, u"a.carnet"_s, "Carnet de plongee");
        row("empty budget", u"empty.carnet"_s, u"a.budget"_s, "Budget");
        row("empty, in capitals", u"empty.carnet"_s, u"a.EPAVES"_s, "Epaves");
        row("empty, any other name", u"empty.carnet"_s, u"a.txt"_s, "Carnet de plongee");
        row("empty, two extensions", u"empty.carnet"_s, u"a.budget.structures"_s, "Structures");
        row("clubs", u"structures-v0.structures"_s, u"a"_s, "Structures");
        row("firms", u"entreprises-v3.entreprises"_s, u"a"_s, "Entreprises");
        row("equipment", u"materiel-v5.materiel"_s, u"a"_s, "Materiel");
        row("rebreather", u"rebreather-v4.rebreather"_s, u"a"_s, "Rebreather");
        row("consumables", u"consommables-v3.consommables"_s, u"a"_s, "Consommables");
        row("compressor", u"compresseur-v1.compresseur"_s, u"a"_s, "Compresseur");
        row("papers", u"documents-v1.documents"_s, u"a"_s, "Divers documents");
    }
    void aKindIsKnownByContentThenByExtension() {
        QFETCH(QString, golden);
        QFETCH(QString, name);
        QFETCH(QString, type);
        const auto document = _controller->read(put(name, golden));
        QCOMPARE(QString::fromLatin1(document->kind().typeName), type);
        QVERIFY(!document->isEdited());
    }

    void recordsOfNoKindAreRefused() {
        const auto error =
            failureOf<DocumentError>([&] { _controller->read(put(u"a"_s, u"refused-class-foo.carnet"_s)); });
        QVERIFY(error);
        QVERIFY2(sentenceOf(*error).contains(u"\"Foo\""_s), error->what());
    }

    void opensAFileOnce() {
        const QString path = put(u"a.carnet"_s, u"plongee-v27.carnet"_s);
        QVERIFY(QFile::link(path, _folder->path(u"link.carnet"_s)));
        QSignalSpy opened(_controller.get(), &DocumentController::documentOpened);
        QSignalSpy front(_controller.get(), &DocumentController::documentWantsFront);
        Document* document = _controller->openDocument(path);
        QVERIFY(document && document->lock);
        for (const QString& again : {path, _folder->path(u"./a.carnet"_s), _folder->path(u"link.carnet"_s)})
            QCOMPARE(_controller->openDocument(again), document);
        QCOMPARE(opened.size(), 1);
        QCOMPARE(front.size(), 3);
        QCOMPARE(_controller->documents().size(), 1u);
        _controller->close(document);
        QVERIFY(_controller->documents().empty());
        QVERIFY(_controller->openDocument(path));
        QCOMPARE(opened.size(), 2);
    }

    void whatDoesNotOpenIsToldInOneSentence() {
        const QString missing = _folder->path(u"none.carnet"_s);
        _desk->prompt.expectAlert(
            u"“none.carnet” cannot be read: there is no such file in “%1”."_s.arg(_folder->path()));
        QVERIFY(!_controller->openDocument(missing));
        QVERIFY(_controller->documents().empty());
        QVERIFY(!_controller->recentDocuments());
    }

    void closingTellsFirstAndOnlyOnce() {
        Document* document = _controller->openUntitledDocument();
        QSignalSpy closing(_controller.get(), &DocumentController::documentClosing);
        _controller->close(document);
        _controller->close(nullptr);
        QCOMPARE(closing.size(), 1);
        QVERIFY(_controller->documents().empty());
    }

    void recentDocumentsAreTheLatestFirstEachOnce() {
        QVERIFY(!_controller->recentDocuments());
        QSignalSpy changed(_controller.get(), &DocumentController::recentDocumentsChanged);
        for (const auto& name : {u"a"_s, u"b"_s, u"a"_s}) _controller->noteRecentDocument(name);
        QCOMPARE(*_controller->recentDocuments(), QStringList({u"a"_s, u"b"_s}));
        QCOMPARE(changed.size(), 3);
        for (int i = 0; i < 20; ++i) _controller->noteRecentDocument(QString::number(i));
        QCOMPARE(_controller->recentDocuments()->size(), DocumentController::maximumRecent);
        QCOMPARE(_controller->recentDocuments()->first(), u"19"_s);
        QCOMPARE(_controller->recentDocuments()->last(), u"8"_s);
        _controller->clearRecentDocuments();
        QVERIFY(!_controller->recentDocuments());
    }

    void openingIsRememberedByTheWholePath() {
        const QString path = put(u"a.carnet"_s, u"plongee-v27.carnet"_s);
        _controller->openDocument(path);
        QCOMPARE(*_controller->recentDocuments(), QStringList({path}));
    }

    void aLineEndInADamagedFileDoesNotBreakTheSentence() {
        QByteArray bytes = golden::bytes(u"compresseur-v1.compresseur"_s);
        bytes.replace("@", "\n");
        _folder->put(u"a\nb"_s, bytes);
        const auto error = failureOf<DocumentError>([&] { _controller->read(_folder->path(u"a\nb"_s)); });
        QVERIFY(error);
        QVERIFY(!sentenceOf(*error).contains(u'\n'));
    }
};

int runDocumentControllerTest(int argc, char** argv) {
    DocumentControllerTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DocumentControllerTest.moc"
