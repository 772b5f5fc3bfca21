#include "registers/ui/RegisterUiTests.h"
#include "support/Golden.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

/// A register's window over its golden file.
struct GoldenOnScreen : RegisterOnScreen {
    GoldenOnScreen(const QString& type, const QString& file) : RegisterOnScreen(type.toLatin1().constData()) {
        document->readBytes(golden::bytes(file), document->kind().currentTypeName(desk.desk));
        shown->selectRows({0});
    }
};

}  // namespace

/// The windows of all registers but wrecks and equipment.
class OtherRegistersTest : public QObject {
    Q_OBJECT

    static void addRegisters() {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("action");
        QTest::addColumn<int>("pages");
        const auto row = [](const char* type, const QString& file, const QString& action, int pages) {
            QTest::newRow(type) << QString::fromLatin1(type) << file << action << pages;
        };
        row("Compresseur", u"compresseur-v1.compresseur"_s, u"goCompView_"_s, 3);
        row("Rebreather", u"rebreather-v4.rebreather"_s, u"goRebreatherView_"_s, 3);
        row("Consommables", u"consommables-v3.consommables"_s, u"goPartView_"_s, 2);
        row("Budget", u"budget-v1.budget"_s, u"goBudgetView_"_s, 3);
        row("Entreprises", u"entreprises-v3.entreprises"_s, u"goFirmView_"_s, 3);
        row("Structures", u"structures-v0.structures"_s, u"goStructView_"_s, 4);
        row("Divers documents", u"documents-v1.documents"_s, u"goDocView_"_s, 3);
    }

private Q_SLOTS:
    void everyControlHasItsWidgetOnAPage_data() { addRegisters(); }
    void everyControlHasItsWidgetOnAPage() {
        QFETCH(QString, type);
        QFETCH(QString, file);
        QFETCH(QString, action);
        QFETCH(int, pages);
        GoldenOnScreen screen(type, file);
        screen.openEdit();
        QCOMPARE(screen.edit()->view().paneCount(), pages);
        for (int page = 1; page <= pages; ++page) {
            auto* go = screen.edit()->findChild<QAction*>(action + QString::number(page));
            QVERIFY(go);
            go->trigger();
            QCOMPARE(screen.edit()->pageShown(), page - 1);
        }
        for (int i = 0; i < screen.form().count(); ++i) {
            const QString name = QLatin1String(screen.form().spec(i).name);
            if (name != u"countField"_s) QVERIFY2(screen.field(name), qPrintable(name));
        }
    }

    // Whatever is typed into a text field arrives in the record that is stored when the window is closed.
    void whatIsTypedIsStored_data() { addRegisters(); }
    void whatIsTypedIsStored() {
        QFETCH(QString, type);
        QFETCH(QString, file);
        GoldenOnScreen screen(type, file);
        screen.openEdit();
        for (int i = 0; i < screen.form().count(); ++i) {
            const ControlSpec& spec = screen.form().spec(i);
            const ControlState& state = screen.form().state(i);
            if (spec.kind != ControlKind::Text || !state.enabled || state.hidden) continue;
            formwalk::operate(screen.field(QLatin1String(spec.name)), spec, 1);
            QCOMPARE(screen.form().text(i), u"11,5"_s);
        }
        screen.edit()->close();
        QVERIFY(screen.document->isEdited());
        screen.shown->selectRows({1});
        screen.shown->selectRows({0});
        for (int i = 0; i < screen.form().count(); ++i) {
            const ControlState& state = screen.form().state(i);
            if (screen.form().spec(i).kind == ControlKind::Text && state.enabled && !state.hidden)
                QCOMPARE(state.text, u"11,5"_s);
        }
    }

    void theCompressorsFormHasNoEraseButton() {
        GoldenOnScreen screen(u"Compresseur"_s, u"compresseur-v1.compresseur"_s);
        screen.openEdit();
        QVERIFY(screen.tool(screen.edit(), "serviceEditWindowToolbar", "addService"));
        QVERIFY(!screen.tool(screen.edit(), "serviceEditWindowToolbar", "blankFields"));
        QVERIFY(!screen.tool(screen.edit(), "serviceEditWindowToolbar", "blankfields"));
    }

    void theBudgetsFormHasNoUpdateButton() {
        GoldenOnScreen screen(u"Budget"_s, u"budget-v1.budget"_s);
        screen.openEdit();
        QVERIFY(screen.tool(screen.edit(), "budgetEditWindowToolbar", "blankFields"));
        QVERIFY(!screen.tool(screen.edit(), "budgetEditWindowToolbar", "updatePrestation"));
    }

    void aLogWithoutInterventionsSaysWhyNoneIsAdded_data() {
        QTest::addColumn<Strings::Language>("language");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("English")
            << Strings::Language::English
            << u"there is no earlier intervention to carry cells over from, so none was added"_s;
        QTest::newRow("French")
            << Strings::Language::French
            << u"il n’y a pas d’intervention antérieure dont reprendre les cellules : rien n’a été ajouté"_s;
    }
    void aLogWithoutInterventionsSaysWhyNoneIsAdded() {
        QFETCH(Strings::Language, language);
        QFETCH(QString, sentence);
        RegisterOnScreen screen("Rebreather");
        screen.desk.strings.setLanguage(language);
        screen.desk.prompt.expectAlert(sentence);
        screen.press(
            screen.tool(screen.window.get(), "rebreatherTableViewWindowToolbar", "addRebreatherService"));
        QCOMPARE(screen.desk.prompt.finish(), QStringList());
        QCOMPARE(screen.shown->rowCount(), 0);
    }

    void aCellsSwitchShowsItsDates() {
        GoldenOnScreen screen(u"Rebreather"_s, u"rebreather-v4.rebreather"_s);
        screen.form().setTag(ControlName{"cell2Switch"}, 0);
        screen.shown->refresh();
        screen.openEdit();
        screen.edit()->goPage(1);
        auto* fitted = screen.field(u"cell2_inField"_s);
        QVERIFY(!fitted->isVisible() && !screen.field(u"cell2Progress"_s)->isVisible());
        screen.field<QAbstractButton>(u"cell2Switch"_s)->click();
        QVERIFY(fitted->isVisible() && screen.field(u"cell2Progress"_s)->isVisible());
    }

    void aCellsLifeHasItsNumberInTheBar() {
        GoldenOnScreen screen(u"Rebreather"_s, u"rebreather-v4.rebreather"_s);
        screen.openEdit();
        screen.edit()->goPage(1);
        const int gauge = screen.at(u"cell1Progress"_s);
        auto* bar = screen.field<QProgressBar>(u"cell1Progress"_s);
        QVERIFY(bar->isTextVisible());
        const std::pair<double, QString> numbers[] = {
            {49.6, u"50 %"_s}, {126.4, u"126 %"_s}, {-3.0, u"-3 %"_s}, {HUGE_VAL, u"–"_s}};
        for (const auto& [level, text] : numbers) {
            screen.form().setLevel(gauge, level);
            QCOMPARE(bar->text(), text);
        }
    }

    void theTotalFollowsTheTyping() {
        RegisterOnScreen screen("Budget", {u"Dive"_s});
        screen.shown->selectRows({0});
        screen.openEdit();
        screen.edit()->goPage(1);
        formwalk::typeInto(screen.field(u"quantite_0Field"_s), u"2"_s);
        formwalk::typeInto(screen.field(u"prixUnitaire_0Field"_s), u"30"_s);
        QTest::keyClick(screen.field(u"prixUnitaire_0Field"_s), Qt::Key_Tab);
        QCOMPARE(screen.text(u"totalField"_s), u"60"_s);
    }

    void aDropOfRowsRepeatsTheLastRecord() {
        RegisterOnScreen items("Materiel", {u"a"_s, u"b"_s});
        QMimeData dragged;
        dragged.setData(u"materiel"_s, "0");
        QWidget* viewport = items.window->table().viewport();
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &drop);
        QCOMPARE(items.column(u"matosNo"_s), QStringList({u"a"_s, u"b"_s, u"b"_s}));
        QCOMPARE(items.window->table().model()->rowCount(), 3);
    }
};

int runOtherRegistersTest(int argc, char** argv) {
    OtherRegistersTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "OtherRegistersTest.moc"
