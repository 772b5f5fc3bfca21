#include "platform/form/Form.h"

#include <QFileInfo>
#include <QRegularExpression>

#include "platform/files/SafeFile.h"
#include "platform/form/ColorText.h"
#include "platform/form/PictureBytes.h"
#include "platform/text/Numbers.h"
#include "platform/text/Strings.h"

namespace sargan {

namespace {

constexpr bool isTyped(ControlKind kind) {
    return kind == ControlKind::Text || kind == ControlKind::Number || kind == ControlKind::Area ||
           kind == ControlKind::Combo || kind == ControlKind::Caption;
}

QByteArray pictureIn(const QString& control, const QByteArray& bytes, int page = 0) {
    QByteArray picture = pictureBytesOf(bytes, page);
    if (picture.isNull()) throw ControlValueError(control, QStringLiteral("the file is no picture"));
    return picture;
}

/// A file's picture, or that of one page of a PDF, counted from 1: "scan.pdf#3". A file whose name ends so
/// comes first.
QByteArray pictureAt(const QString& control, const QString& place) {
    static const QRegularExpression pageOfFile(QStringLiteral("^(.+)#(\\d{1,9})$"));
    const QRegularExpressionMatch match = pageOfFile.match(place);
    if (!match.hasMatch() || QFileInfo::exists(place) || !QFileInfo::exists(match.captured(1)))
        return pictureIn(control, readFile(place));
    const QByteArray file = readFile(match.captured(1));
    const int pages = pdfPageCount(file);
    const int page = match.captured(2).toInt();
    if (pages == 0) throw ControlValueError(control, QStringLiteral("only a PDF has pages to choose from"));
    if (page < 1 || page > pages)
        throw ControlValueError(control, QStringLiteral("the file has no page %1, its last one is page %2")
                                             .arg(page)
                                             .arg(pages));
    return pictureIn(control, file, page - 1);
}

int wholeNumber(const QString& control, const QString& text) {
    bool fine = false;
    const int value = text.toInt(&fine);
    if (!fine) throw ControlValueError(control, QStringLiteral("\"%1\" is not a whole number").arg(text));
    return value;
}

}  // namespace

Form::Form(std::span<const ControlSpec> specs, QObject* parent)
    : QObject(parent), _specs(specs.begin(), specs.end()), _states(specs.size()) {
    _index.reserve(qsizetype(specs.size()) * 2);
    _names.reserve(specs.size());
    for (int i = 0; i < count(); ++i) {
        _index.insert(QString::fromLatin1(spec(i).name), i);
        _names.emplace(spec(i).name, i);
    }
}

int Form::operator[](ControlName name) const {
    const auto found = _names.find(name.text);
    return found == _names.end() ? find(QString::fromLatin1(name.text)) : found->second;
}

int Form::find(QStringView name) const {
    const auto found = _index.find(name.toString());
    if (found == _index.end()) throw UnknownControlError(name.toString());
    return *found;
}

double Form::number(int control) const {
    return isTyped(spec(control).kind) ? leadingNumber(state(control).text) : state(control).tag;
}

int Form::integer(int control) const {
    return isTyped(spec(control).kind) ? leadingInteger(state(control).text) : state(control).tag;
}

namespace {

/// An absent text and an empty one are two values, though they look the same.
bool isSameText(const QString& a, const QString& b) {
    return a == b && a.isNull() == b.isNull();
}

}  // namespace

template <typename T>
void Form::assign(int control, T ControlState::*member, const T& value) {
    T& held = _states[std::size_t(control)].*member;
    if (held == value) return;
    held = value;
    Q_EMIT changed(control);
}

void Form::setText(int control, const QString& text) {
    ControlState& held = _states[std::size_t(control)];
    if (held.runs.isEmpty() && isSameText(held.text, text)) return;
    held.runs.clear();
    held.text = text;
    Q_EMIT changed(control);
}

void Form::setRuns(int control, const QList<TextRun>& runs) {
    QString text;
    for (const TextRun& run : runs) text += run.text;
    ControlState& held = _states[std::size_t(control)];
    if (held.runs == runs && isSameText(held.text, text)) return;
    held.runs = runs;
    held.text = text;
    Q_EMIT changed(control);
}

void Form::setInteger(int control, int value) {
    if (isTyped(spec(control).kind))
        setText(control, QString::number(value));
    else
        setTag(control, value);
}

void Form::setTag(int control, int tag) {
    assign(control, &ControlState::tag, tag);
}

void Form::setDate(int control, const Moment& date) {
    assign(control, &ControlState::date, date);
}

void Form::setImage(int control, const QByteArray& bytes) {
    ControlState& held = _states[std::size_t(control)];
    if (held.image == bytes && held.image.isNull() == bytes.isNull()) return;
    held.image = bytes;
    Q_EMIT changed(control);
}

void Form::setLevel(int control, double percent) {
    assign(control, &ControlState::level, percent);
}

void Form::setColor(int control, const QColor& color) {
    assign(control, &ControlState::color, color);
}

void Form::setEnabled(int control, bool enabled) {
    assign(control, &ControlState::enabled, enabled);
}

void Form::setHidden(int control, bool hidden) {
    assign(control, &ControlState::hidden, hidden);
}

void Form::fill(int control, const QString& value) {
    const QString name = QString::fromLatin1(spec(control).name);
    switch (spec(control).kind) {
        case ControlKind::Caption:
        case ControlKind::Gauge:
            throw ControlValueError(name, QStringLiteral("is shown only, it takes no value"));
        case ControlKind::Date:
        case ControlKind::Time: {
            const Moment date = Moment::fromIso(value);
            if (!date.isPresent() && !value.isEmpty())
                throw ControlValueError(
                    name, QStringLiteral("\"%1\" is not a date or time such as 2016-06-07, 14:30 "
                                         "or 2016-06-07T14:30:00")
                              .arg(value));
            setDate(control, date);
            break;
        }
        case ControlKind::PopUp:
        case ControlKind::Slider:
            setTag(control, wholeNumber(name, value));
            break;
        case ControlKind::Switch: {
            const int state = wholeNumber(name, value);
            if (state != 0 && state != 1)
                throw ControlValueError(name, QStringLiteral("a switch takes 0 or 1"));
            setTag(control, state);
            break;
        }
        case ControlKind::Image:
            setImage(control, value.isEmpty() ? QByteArray() : pictureAt(name, value));
            break;
        case ControlKind::Color: {
            const QColor color = colorFromText(value);
            if (!color.isValid())
                throw ControlValueError(name, QStringLiteral("\"%1\" is not a colour").arg(value));
            setColor(control, color);
            break;
        }
        default:
            setText(control, value);
    }
    endEditing(control);
}

void Form::endEditing(int control) {
    if (onEndEditing) onEndEditing(control);
}

void Form::press(const QString& action) {
    const auto found = _actions.find(action);
    if (found == _actions.end()) throw UnknownControlError(action);
    (*found)();
}

QStringList Form::actionNames() const {
    QStringList names = _actions.keys();
    names.sort();
    return names;
}

QString Form::shownText(int control, const Strings& strings) const {
    const ControlState& shown = state(control);
    switch (spec(control).kind) {
        case ControlKind::PopUp:
            for (const MenuItem& item : spec(control).menu)
                if (item.tag == shown.tag) return strings.text(item.words);
            return {};
        case ControlKind::Date:
            if (!shown.date.isPresent()) return QLatin1String(spec(control).noDate);
            return shown.date.local().toString(QStringLiteral("dd/MM/yyyy"));
        case ControlKind::Time:
            return shown.date.local().toString(QStringLiteral("HH:mm"));
        case ControlKind::Switch:
        case ControlKind::Slider:
            return QString::number(shown.tag);
        case ControlKind::Image:
        case ControlKind::Color:
            return {};
        case ControlKind::Gauge:
            return fillFormat(u"%.0f %%", std::array<FormatArgument, 1>{shown.level});
        default:
            return shown.text;
    }
}

void Form::setFocus(int control) {
    _focus = control;
    Q_EMIT focusWanted(control);
}

}  // namespace sargan
