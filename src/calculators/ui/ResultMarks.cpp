#include "calculators/ui/ResultMarks.h"

#include <QGuiApplication>
#include <QLabel>
#include <QLayout>

#include "calculators/Calculator.h"
#include "platform/form/SystemColors.h"
#include "platform/ui/LegibleColor.h"

namespace sargan {

namespace {

QString richText(const QList<TextRun>& runs) {
    const QColor window = QGuiApplication::palette().color(QPalette::Window);
    QString html;
    for (const TextRun& run : runs) {
        const QString text = run.text.toHtmlEscaped();
        html += run.color.isValid() ? QStringLiteral("<span style=\"color:%1\">%2</span>")
                                          .arg(legibleOn(window, run.color).name(), text)
                                    : text;
    }
    return QStringLiteral("<p style=\"white-space:pre-wrap\">") + html + QStringLiteral("</p>");
}

}  // namespace

ResultMarks::ResultMarks(const Form& form, const Desk& desk, QWidget* view)
    : QObject(view), _form(form), _desk(desk), _view(view) {
    connect(&form, &Form::changed, this, &ResultMarks::update);
    updateAll();
}

void ResultMarks::updateAll() {
    for (int control = 0; control < _form.count(); ++control) update(control);
}

void ResultMarks::update(int control) {
    if (_form.spec(control).kind != ControlKind::Caption) return;
    auto* label = _view->findChild<QLabel*>(QLatin1String(_form.spec(control).name));
    if (!label) return;
    const ControlState& state = _form.state(control);
    if (!state.runs.isEmpty()) {
        label->setTextFormat(Qt::RichText);
        label->setText(richText(state.runs));
    }
    const bool isRed = state.color == systemcolor::red;
    QFont font = label->font();
    font.setBold(isRed);
    label->setFont(font);
    if (isRed || _marks.contains(label)) markOf(label)->setVisible(isRed);
}

QLabel* ResultMarks::markOf(QLabel* result) {
    QLabel*& mark = _marks[result];
    if (!mark) {
        mark = new QLabel(_desk.strings.text(Calculator::outsideLimits), result->parentWidget());
        mark->setObjectName(result->objectName() + QStringLiteral("Mark"));
        mark->setTextFormat(Qt::PlainText);
        auto* line = qobject_cast<QBoxLayout*>(result->parentWidget()->layout());
        if (line) line->insertWidget(line->indexOf(result) + 1, mark);
    }
    return mark;
}

}  // namespace sargan
