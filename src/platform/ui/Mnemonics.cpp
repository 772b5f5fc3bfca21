#include "platform/ui/Mnemonics.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <functional>
#include <numeric>

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

/// A text without its marks.
QString plainText(const QString& text) {
    QString plain;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (text[at] == u'&' && ++at == text.size()) break;
        plain += text[at];
    }
    return plain;
}

/// The text with its letter marked; without a mark when all its letters are taken.
QString withMnemonic(const QString& words, QSet<QChar>& taken, bool& isMarked) {
    const qsizetype at = freeLetter(words, taken);
    const auto escaped = [](QString text) { return text.replace(u'&', QStringLiteral("&&")); };
    isMarked = at >= 0;
    if (!isMarked) return escaped(words);
    taken.insert(words[at].toLower());
    return escaped(words.left(at)) + u'&' + escaped(words.mid(at));
}

/// All texts with their letters. Where one finds all of its letters taken, it is given one before the others.
QStringList withMnemonics(const QStringList& texts, QSet<QChar>& taken) {
    QList<qsizetype> order(texts.size());
    std::iota(order.begin(), order.end(), 0);
    QStringList marked = texts;
    for (qsizetype attempt = 0; attempt <= texts.size(); ++attempt) {
        QSet<QChar> now = taken;
        qsizetype without = -1;
        for (const qsizetype text : std::as_const(order)) {
            bool isMarked = false;
            marked[text] = withMnemonic(texts[text], now, isMarked);
            if (!isMarked && without < 0 && freeLetter(texts[text], {}) >= 0) without = text;
        }
        if (without < 0 || without == order.first() || attempt == texts.size()) {
            taken = now;
            break;
        }
        order.removeOne(without);
        order.prepend(without);
    }
    return marked;
}

/// Whether the keyboard can come to a label's control at all.
bool isReached(const QWidget* control, const QWidget* pane) {
    return control && control->isEnabledTo(pane) && (control->focusPolicy() & Qt::TabFocus);
}

/// The letter that a text marks with "&"; none marks none.
QChar markedLetter(const QString& text) {
    for (qsizetype at = text.indexOf(u'&'); at >= 0 && at + 1 < text.size(); at = text.indexOf(u'&', at + 2))
        if (text[at + 1] != u'&') return text[at + 1].toLower();
    return {};
}

void allotMnemonics(const QList<QAction*>& entries) {
    QSet<QChar> taken;
    QList<QAction*> without;
    for (QAction* entry : entries) {
        if (entry->isSeparator() || entry->text().isEmpty()) continue;
        const QChar letter = markedLetter(entry->text());
        if (letter.isNull() || taken.contains(letter))
            without << entry;
        else
            taken << letter;
    }
    QStringList texts;
    for (const QAction* entry : std::as_const(without)) texts << plainText(entry->text());
    const QStringList marked = withMnemonics(texts, taken);
    for (qsizetype i = 0; i < without.size(); ++i) without[i]->setText(marked[i]);
}

}  // namespace

QSet<QChar> allotMnemonics(QWidget* pane, QSet<QChar> taken) {
    QStringList texts;
    QList<std::function<void(const QString&)>> setters;
    const QList<QWidget*> widgets = pane->findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        auto* label = qobject_cast<QLabel*>(widget);
        auto* button = qobject_cast<QAbstractButton*>(widget);
        if (label && isReached(label->buddy(), pane)) {
            texts << label->text();
            setters << [label](const QString& text) { label->setText(text); };
        } else if (button && !button->text().isEmpty()) {
            texts << button->text();
            setters << [button](const QString& text) { button->setText(text); };
        }
    }
    const QStringList marked = withMnemonics(texts, taken);
    for (qsizetype i = 0; i < marked.size(); ++i) setters[i](marked[i]);
    return taken;
}

void keepMnemonics(QMenu* menu) {
    QObject::connect(menu, &QMenu::aboutToShow, menu, [menu] { allotMnemonics(menu->actions()); });
    const QList<QAction*> entries = menu->actions();
    for (const QAction* entry : entries)
        if (entry->menu()) keepMnemonics(entry->menu());
}

void keepMnemonics(QMenuBar* bar) {
    allotMnemonics(bar->actions());
    const QList<QAction*> titles = bar->actions();
    for (const QAction* title : titles)
        if (title->menu()) keepMnemonics(title->menu());
}

}  // namespace sargan
