#include "platform/ui/Mnemonics.h"

#include <QAbstractButton>
#include <QLabel>
#include <QSet>

namespace sargan {

namespace {

/// The place of the letter to press; -1 when all are taken.
qsizetype freeLetter(const QString& words, const QSet<QChar>& taken) {
    const auto isFree = [&](qsizetype at) {
        const QChar letter = words[at];
        return letter.isLetterOrNumber() && letter.unicode() < 0x80 && !taken.contains(letter.toLower());
    };
    for (qsizetype at = 0; at < words.size(); ++at)
        if ((at == 0 || words[at - 1].isSpace()) && isFree(at)) return at;
    for (qsizetype at = 0; at < words.size(); ++at)
        if (isFree(at)) return at;
    return -1;
}

QString withMnemonic(const QString& words, QSet<QChar>& taken) {
    const qsizetype at = freeLetter(words, taken);
    const auto escaped = [](QString text) { return text.replace(u'&', QStringLiteral("&&")); };
    if (at < 0) return escaped(words);
    taken.insert(words[at].toLower());
    return escaped(words.left(at)) + u'&' + escaped(words.mid(at));
}

/// Whether the keyboard can come to a label's control at all.
bool isReached(const QWidget* control, const QWidget* pane) {
    return control && control->isEnabledTo(pane) && (control->focusPolicy() & Qt::TabFocus);
}

}  // namespace

void allotMnemonics(QWidget* pane) {
    QSet<QChar> taken;
    const QList<QWidget*> widgets = pane->findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        auto* label = qobject_cast<QLabel*>(widget);
        if (label && isReached(label->buddy(), pane)) label->setText(withMnemonic(label->text(), taken));
        auto* button = qobject_cast<QAbstractButton*>(widget);
        if (button && !button->text().isEmpty()) button->setText(withMnemonic(button->text(), taken));
    }
}

}  // namespace sargan
