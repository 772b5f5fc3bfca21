#include "stats/Statistics.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

/// Posted when previous dives were stored: they are the same for all logbooks.
const QString valuesStored = QStringLiteral("statistics values");

constexpr Message<int> totalDives{"Carnet", "Total dives"};
constexpr Message<int> celsius{"Carnet", "Celsius"};

/// What a field holds, as settings keep it: a number when all of the text is one, else the text.
QJsonValue objectValue(const QString& text) {
    bool fine = false;
    const double number = QString(text).replace(u',', u'.').toDouble(&fine);
    return fine && std::isfinite(number) ? QJsonValue(number) : QJsonValue(text);
}

QString objectText(const QJsonValue& value) {
    if (value.isString()) return value.toString();
    return shortest(value.toDouble());
}

QString hoursText(qint32 total) {
    const int hours = total / 60;
    return QString::asprintf("%d h %.2d min.\r(%d min.)", hours, total - hours * 60, total);
}

}  // namespace

Statistics::Statistics(Carnet& carnet)
    : _carnet(carnet), _panel(statisticsControls()), _editor(previousDivesControls()) {
    _panel.addAction(u"updateStatistics"_s, [this] { updateStatistics(); });
    _panel.addAction(u"showEditStatisticsWindow"_s, [this] { showEditStatisticsWindow(); });
    _editor.addAction(u"validateStatisticsValues"_s, [this] { validateStatisticsValues(); });
    _editor.addAction(u"closeEditStatisticsWindow"_s, [this] { closeEditStatisticsWindow(); });
    connect(&_carnet, &Document::contentChanged, this, &Statistics::updateStatistics);
    connect(&_panel, &Form::changed, this, [this](int control) {
        if (control == _panel[statcontrol::ignorePrevious]) updateStatistics();
    });
    _stored = desk().notifications.observe(valuesStored, [this](const void*) { updateStatistics(); });
    updateStatistics();
}

void Statistics::updateStatistics() {
    _statisticsValues =
        PreviousDives(desk().defaults.value(QLatin1String(PreviousDives::settingsKey)).toObject());
    showTotals(totalsOf(_carnet.records(), _statisticsValues, ignoresPreviousDives()));
    setDataForStatGraphes();
}

void Statistics::showTotals(const StatisticsTotals& totals) {
    const Strings& words = desk().strings;
    const auto metres = [](qint32 value) { return u"%1 m"_s.arg(value); };
    const auto minutes = [](qint32 value) { return u"%1 min."_s.arg(value); };
    _panel.setText(statcontrol::state, words.text(totalDives, totals.dives));
    showCounters(totals);
    showText("statProfMaxField", metres(totals.deepest));
    showText("statProfMoyField", metres(totals.meanDepth()));
    showText("statTempsMaxField", minutes(totals.longest));
    showText("statProfTotalField", metres(totals.totalDepth));
    showText("statTempsTotalField", hoursText(totals.totalTime));
    showText("statTempsMoyField", minutes(totals.meanTime()));
    showText("statTempEauMinField", words.text(celsius, totals.coldest));
    showText("statTempEauMaxField", words.text(celsius, totals.warmest));
    showText("statTempEauMoyField", words.text(celsius, totals.meanTemperature()));
}

void Statistics::showCounters(const StatisticsTotals& totals) {
    for (const CounterFields& fields : counterFields()) {
        const std::array<FormatArgument, 1> share{totals.share(fields.counter)};
        showText(fields.field, QString::number(totals.counts[std::size_t(fields.counter)]));
        showText(fields.shareField, fillFormat(u"%.1f %%", share));
    }
}

void Statistics::setDataForStatGraphes() {
    const qint32 previous = ignoresPreviousDives() ? 0 : _statisticsValues.value("total plongees");
    const auto divisor = float(qint32(_carnet.count() + previous));
    for (std::size_t i = 0; i < graphesValues.size(); ++i)
        _shares[i] = float(_panel.number(ControlName{graphesValues[i].field})) / divisor * 100;
    Q_EMIT sharesChanged();
}

void Statistics::showEditStatisticsWindow() {
    _statisticsValues =
        PreviousDives(desk().defaults.value(QLatin1String(PreviousDives::settingsKey)).toObject());
    for (const PreviousField& field : previousFields())
        _editor.setText(ControlName{field.field},
                        objectText(_statisticsValues.values().value(QLatin1String(field.key))));
    Q_EMIT editorShown();
}

void Statistics::validateStatisticsValues() {
    QJsonObject values;
    for (const PreviousField& field : previousFields())
        values.insert(QLatin1String(field.key), objectValue(_editor.text(ControlName{field.field})));
    Q_EMIT editorClosed();
    desk().defaults.store(QLatin1String(PreviousDives::settingsKey), values);
    desk().notifications.post(valuesStored, this);
}

}  // namespace sargan
