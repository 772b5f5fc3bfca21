#include "platform/ui/MomentField.h"

#include <QAction>
#include <QCalendarWidget>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QRegularExpression>
#include <QWidgetAction>

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

/// Two digits of a year mean the hundred years that end twenty years from now or earlier in this century.
int fullYear(int year, qsizetype digits) {
    if (digits > 2) return year;
    return year <= QDate::currentDate().year() % 100 + 20 ? 2000 + year : 1900 + year;
}

QDate dayOf(const QRegularExpressionMatch& match) {
    if (!match.hasMatch()) return {};
    return {fullYear(match.captured(3).toInt(), match.capturedLength(3)), match.captured(2).toInt(),
            match.captured(1).toInt()};
}

QIcon calendarIcon(const QPalette& palette) {
    QPixmap picture(32, 32);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setPen(QPen(palette.color(QPalette::PlaceholderText), 2));
    painter.drawRect(5, 7, 21, 19);
    painter.drawLine(5, 13, 26, 13);
    for (const int x : {10, 15, 20})
        for (const int y : {17, 21}) painter.drawPoint(x, y);
    return picture;
}

}  // namespace

MomentField::MomentField(Part part, QWidget* parent) : QLineEdit(parent), _part(part) {
    connect(this, &QLineEdit::textEdited, this, &MomentField::typed);
    setText(shown(_moment));
    if (part == Part::TimeOfDay) return;
    QAction* calendar = addAction(calendarIcon(palette()), QLineEdit::TrailingPosition);
    connect(calendar, &QAction::triggered, this, &MomentField::showCalendar);
}

QString MomentField::shown(const Moment& moment) const {
    if (!moment.isPresent()) return _part == Part::Day ? u"--/--/----"_s : u"--:--"_s;
    const QDateTime local = moment.local();
    if (!local.isValid()) return moment.iso();
    return local.toString(_part == Part::Day ? u"dd/MM/yyyy"_s : u"HH:mm"_s);
}

void MomentField::setMoment(const Moment& moment) {
    if (moment == _moment) return;
    _moment = moment;
    setText(shown(moment));
}

QDate MomentField::readDay(const QString& text) {
    static const QRegularExpression iso(u"^(\\d{4})-(\\d{1,2})-(\\d{1,2})$"_s);
    static const QRegularExpression separated(u"^(\\d{1,2})[-/. ](\\d{1,2})[-/. ](\\d{4}|\\d{2})$"_s);
    static const QRegularExpression plain(u"^(\\d\\d)(\\d\\d)(\\d{4}|\\d{2})$"_s);
    const QString trimmed = text.trimmed();
    if (const auto match = iso.match(trimmed); match.hasMatch())
        return {match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt()};
    const QDate day = dayOf(separated.match(trimmed));
    return day.isValid() ? day : dayOf(plain.match(trimmed));
}

QTime MomentField::readTime(const QString& text) {
    static const QRegularExpression pattern(u"^(\\d{1,2})(?:\\s*[:.hH ]\\s*(\\d{1,2})?)?$"_s);
    static const QRegularExpression plain(u"^(\\d{1,2})(\\d\\d)$"_s);
    const QString trimmed = text.trimmed();
    auto match = pattern.match(trimmed);
    if (!match.hasMatch()) match = plain.match(trimmed);
    return match.hasMatch() ? QTime(match.captured(1).toInt(), match.captured(2).toInt()) : QTime();
}

std::optional<Moment> MomentField::withDay(const QDate& day) const {
    if (!day.isValid()) return std::nullopt;
    const QDateTime old = _moment.local();
    if (old.isValid() && old.date() == day) return _moment;
    return Moment::fromDateTime(QDateTime(day, old.isValid() ? old.time() : QTime(0, 0)));
}

std::optional<Moment> MomentField::withTime(const QTime& time) const {
    if (!time.isValid()) return std::nullopt;
    const QDateTime old = _moment.local();
    // The seconds that the field does not show stay while the hour and minute stay.
    if (old.isValid() && old.time().hour() == time.hour() && old.time().minute() == time.minute())
        return _moment;
    return Moment::fromDateTime(QDateTime(old.isValid() ? old.date() : QDate(2001, 1, 1), time));
}

void MomentField::typed(const QString& text) {
    if (text.trimmed().isEmpty()) return assign(Moment());
    if (const auto moment = _part == Part::Day ? withDay(readDay(text)) : withTime(readTime(text)))
        assign(*moment);
}

void MomentField::assign(const Moment& moment) {
    if (moment == _moment) return;
    _moment = moment;
    Q_EMIT momentEdited(moment);
}

void MomentField::step(int count) {
    const QDateTime old = _moment.local();
    if (isReadOnly() || !old.isValid()) return;
    assign(Moment::fromDateTime(_part == Part::Day ? old.addDays(count)
                                                   : QDateTime(old.date(), old.time().addSecs(count * 60))));
    setText(shown(_moment));
    selectAll();
}

void MomentField::showCalendar() {
    if (isReadOnly()) return;
    QMenu menu(this);
    auto* calendar = new QCalendarWidget(&menu);
    if (_moment.local().isValid()) calendar->setSelectedDate(_moment.local().date());
    auto* holder = new QWidgetAction(&menu);
    holder->setDefaultWidget(calendar);
    menu.addAction(holder);
    const auto choose = [this, &menu](const QDate& day) {
        if (const auto moment = withDay(day)) assign(*moment);
        setText(shown(_moment));
        menu.close();
    };
    connect(calendar, &QCalendarWidget::clicked, &menu, choose);
    connect(calendar, &QCalendarWidget::activated, &menu, choose);
    menu.exec(mapToGlobal(QPoint(0, height())));
}

void MomentField::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Up) return step(1);
    if (event->key() == Qt::Key_Down) return step(-1);
    QLineEdit::keyPressEvent(event);
}

void MomentField::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    // What is typed then replaces the whole, and nobody has to delete dashes.
    if (event->reason() == Qt::MouseFocusReason)
        QMetaObject::invokeMethod(this, &QLineEdit::selectAll, Qt::QueuedConnection);
}

void MomentField::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (text() != shown(_moment)) setText(shown(_moment));
}

}  // namespace sargan
