#include <QTest>

#include "CalculatorTests.h"
#include "Workbench.h"
#include "calculators/CalculatorMessages.h"

using namespace sargan;
using namespace Qt::StringLiterals;
namespace text = calculatortext;

Q_DECLARE_METATYPE(sargan::Strings::Language)

namespace {

struct Format {
    const char* table;
    const char* key;
    std::vector<ArgumentKind> kinds;
};

template <typename... Arguments>
Format formatOf(const Message<Arguments...>& message) {
    const auto kinds = message.argumentKinds();
    return {message.table, message.key, {kinds.begin(), kinds.end()}};
}

QList<Format> formats() {
    return {formatOf(text::bestMix),       formatOf(text::oxygenWindow), formatOf(text::oxygenToTransfer),
            formatOf(text::eadEnd),        formatOf(text::profMin),      formatOf(text::bestTx),
            formatOf(text::noValidDatas),  formatOf(text::sodaTime),     formatOf(text::loopFlush),
            formatOf(text::bestCcrTrimix), formatOf(text::breathedFrac), formatOf(text::tableBreathedFrac),
            formatOf(text::idealFlow),     formatOf(text::tableFlow)};
}

/// Every word that the windows show.
QList<Message<>> words() {
    QList<Message<>> all;
    for (const CalculatorSpec& spec : calculatorSpecs()) {
        all << spec.subject << spec.layout.title;
        for (const ControlSpec& control : spec.controls)
            for (const MenuItem& item : control.menu) all << item.words;
        for (const LayoutPane& pane : spec.layout.panes) {
            all << pane.label;
            for (const LayoutSection& section : pane.sections) {
                all << section.title;
                for (const LayoutRow& row : section.rows)
                    for (const LayoutItem& item : row.items) all << item.label << item.unit;
            }
        }
    }
    all.removeIf([](const Message<>& word) { return !word.key; });
    return all;
}

const char missing[] = "no such text";

}  // namespace

class CalculatorTextsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyFormatTakesItsArguments_data() { languages(); }
    void everyFormatTakesItsArguments() {
        QFETCH(Strings::Language, language);
        const Strings strings(language);
        for (const Format& format : formats()) {
            const QString found = strings.lookup(format.key, missing, format.table);
            QVERIFY2(found != QLatin1String(missing), format.key);
            QVERIFY2(placeholdersTake(found, format.kinds), qPrintable(found));
        }
    }

    void everyWordIsThere_data() { languages(); }
    void everyWordIsThere() {
        QFETCH(Strings::Language, language);
        const Strings strings(language);
        const auto all = words();
        QVERIFY(all.size() > 150);
        for (const Message<>& word : all)
            QVERIFY2(strings.lookup(word.key, missing, word.table) != QLatin1String(missing), word.key);
    }

    void resultsAreWordedInBothLanguages_data() {
        QTest::addColumn<QString>("window");
        QTest::addColumn<QString>("values");
        QTest::addColumn<QString>("result");
        QTest::addColumn<QString>("english");
        QTest::addColumn<QString>("french");
        const auto row = [](const char* window, const QString& values, const char* result,
                            const QString& english, const QString& french) {
            QTest::newRow(window) << QString::fromLatin1(window) << values << QString::fromLatin1(result)
                                  << english << french;
        };
        row("Nitrox Best Mix", u"profondeurMaxField=30"_s, "resultatField", u"Best mix: 35.0 % O₂"_s,
            u"Meilleur mélange : 35.0 % O₂"_s);
        row("Nitrox Oxygen Window", u"winFO2=80 winMinPpO2=0,8"_s, "winResult",
            u"1.6 bar of O₂ at 10.0 m, minimum ppO₂ at 0.0 m, usable down to 10.0 m"_s,
            u"1,6 bar d’O₂ à 10.0 m, ppO₂ minimale à 0.0 m, utilisable jusqu’à 10.0 m"_s);
        row("Blend Nitrox", u"pressionFinaleField=200 fracO2FinaleField=32"_s, "resultatField",
            u"Oxygen to transfer: 27.8 bar, oxygen of all that is added: 32.0 %"_s,
            u"Oxygène à transférer : 27.8 bar, oxygène de tout ce qui est ajouté : 32.0 %"_s);
        row("Trimix", u"fracO2TxField=18 fracHeTxField=45 profondeurMaxField=60"_s, "resultatField",
            u"EAD: 22.8 m, END: 28.5 m"_s, u"Profondeur équivalente air : 22.8 m, narcotique : 28.5 m"_s);
        row("Trimix Prof Min", u"fracO2TxField=10"_s, "resultatField", u"Minimum depth: 6.0 m"_s,
            u"Profondeur minimale : 6.0 m"_s);
        row("Best Trimix", u"depthTxField=60 ENDField=30 ppO2Field=1.4"_s, "resultatField",
            u"Oxygen: 20.0 %, helium: 34.9 %"_s, u"Oxygène : 20.0 %, hélium : 34.9 %"_s);
        row("Loop Flush", u"loopPpO2Field=1.6 loopMaxDepthField=6"_s, "loopFracO2Field",
            u"Oxygen of the flush gas: 100.0 %"_s, u"Oxygène du gaz de rinçage : 100.0 %"_s);
        row("CCR Best Trimix", u"depthCCR_TxField=60 ENDCCR_TxField=30"_s, "CCR_BestTxField",
            u"Oxygen: 14 %, helium: 41 %"_s, u"Oxygène : 14 %, hélium : 41 %"_s);
        row("SCR Breathed Frac O2", u"brEanxField=40 brFlowField=10"_s, "c18Field", u"1.8 l/min: 26.8 %"_s,
            u"1.8 l/min : 26.8 %"_s);
        row("SCR Flow Calc", u"idEanxField=50 idRealFracO2Field=30 idMetabolicField=1"_s, "idealFlowField",
            u"Ideal flow: 3.50 l/min"_s, u"Débit idéal : 3.50 l/min"_s);
    }
    void resultsAreWordedInBothLanguages() {
        QFETCH(QString, window);
        QFETCH(QString, values);
        QFETCH(QString, result);
        const QByteArray name = window.toLatin1(), control = result.toLatin1();
        QTEST(Workbench(name, Strings::Language::English).press(values).text(control), "english");
        QTEST(Workbench(name, Strings::Language::French).press(values).text(control), "french");
    }

    /// Reals are rounded as C formats round them: exactly, a tie to the even digit.
    void realsAreRoundedLikeCFormats_data() {
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("text");
        QTest::newRow("tie down") << 2.25 << u"2.2"_s;
        QTest::newRow("tie up") << 2.75 << u"2.8"_s;
        QTest::newRow("tie up to a ten") << 33.75 << u"33.8"_s;
        QTest::newRow("below a tie") << 0.35 << u"0.3"_s;  // 0.35 is 0.34999999999999997
        QTest::newRow("minus zero") << -0.04 << u"-0.0"_s;
        QTest::newRow("large") << 1e22 << u"10000000000000000000000.0"_s;
        QTest::newRow("inf") << double(INFINITY) << u"inf"_s;
        QTest::newRow("-inf") << -double(INFINITY) << u"-inf"_s;
        QTest::newRow("nan") << double(NAN) << u"nan"_s;
    }
    void realsAreRoundedLikeCFormats() {
        QFETCH(double, value);
        QTEST(filled(u"%.1f", {value}), "text");
    }

private:
    static void languages() {
        QTest::addColumn<Strings::Language>("language");
        QTest::newRow("English") << Strings::Language::English;
        QTest::newRow("French") << Strings::Language::French;
    }
};

int runCalculatorTextsTest(int argc, char** argv) {
    CalculatorTextsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "CalculatorTextsTest.moc"
