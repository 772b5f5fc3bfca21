#include "platform/print/StyledText.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <stdexcept>

#include "platform/print/TextPages.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

constexpr qreal usualTab = 40;
constexpr qreal noLigatures = 1.0 / 64;

QString withLineFeeds(QString text) {
    return text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
}

/// As it is laid out: plain texts do without the tab of a hanging line.
QString laidOut(const StyledText::Run& run) {
    QString text = withLineFeeds(run.text);
    return run.style.hanging ? text.replace(u'\n', u"\n\t"_s) : text;
}

/// A page in HTML has no tab stops: what stands in front of a tab is made as wide as its column.
class HtmlColumns {
public:
    explicit HtmlColumns(const QList<qreal>& stops) : _stops(stops) {}

    QString escaped(const QString& text) {
        if (_stops.isEmpty()) return text.toHtmlEscaped();
        QString html, piece;
        for (const QChar c : text) {
            if (c != u'\t' && c != u'\n') {
                piece += c;
                continue;
            }
            const QString words = piece.toHtmlEscaped();
            html += c == u'\n' ? words + u'\n' : inColumn(words);
            _column = c == u'\n' ? 0 : _column + 1;
            piece.clear();
        }
        return html + piece.toHtmlEscaped();
    }

private:
    QString inColumn(const QString& words) const {
        const qreal start = _column > 0 ? _stops.value(_column - 1) : 0;
        const qreal width = _column < _stops.size() ? _stops[_column] - start : usualTab;
        return u"<span style=\"display:inline-block;min-width:%1em\">%2</span>"_s.arg(
            QString::number(width / TextStyle().size, 'f', 2), words);
    }

    const QList<qreal>& _stops;
    qsizetype _column = 0;
};

QString css(const TextStyle& style) {
    QString rules;
    if (style.color.isValid()) rules += u"color:"_s + style.color.name() + u';';
    if (style.bold) rules += u"font-weight:bold;"_s;
    if (style.underline) rules += u"text-decoration:underline;"_s;
    if (style.size != TextStyle().size)
        rules += u"font-size:%1%;"_s.arg(qRound(100 * style.size / TextStyle().size));
    return rules;
}

QTextCharFormat charFormat(const TextStyle& style) {
    QTextCharFormat format;
    format.setFont(printFont(style.size, style.bold));
    format.setFontUnderline(style.underline);
    format.setForeground(style.color.isValid() ? style.color : inkcolor::black);
    return format;
}

}  // namespace

void StyledText::append(const QString& text, const TextStyle& style) {
    if (text.isEmpty()) return;
    if (!_runs.isEmpty() && _runs.last().style == style)
        _runs.last().text += text;
    else
        _runs.append({text, style});
}

void StyledText::append(const StyledText& other) {
    for (const Run& run : other._runs) append(run.text, run.style);
}

QString StyledText::plainText() const {
    QString text;
    for (const Run& run : _runs) text += run.text;
    return withLineFeeds(std::move(text));
}

QString StyledText::html(const QString& title) const {
    QString body;
    HtmlColumns columns(_tabStops);
    for (const Run& run : _runs) {
        const QString words = columns.escaped(laidOut(run));
        const QString rules = css(run.style);
        body += rules.isEmpty() ? words : u"<span style=\"%1\">%2</span>"_s.arg(rules, words);
    }
    return u"<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n<title>"_s + title.toHtmlEscaped() +
           u"</title>\n<style>body { font-family: sans-serif; font-size: 12pt; color: #000; background: "
           u"#fff; "
           "margin: 2em; white-space: pre-wrap; tab-size: 8; }</style>\n</head>\n<body>"_s +
           body + u"</body>\n</html>\n"_s;
}

void StyledText::toDocument(QTextDocument& document) const {
    startDocument(document);
    appendRuns(document, 0, _runs.size());
}

void StyledText::startDocument(QTextDocument& document) const {
    document.clear();
    document.setUndoRedoEnabled(false);
    document.setDefaultFont(printFont(TextStyle().size));
    document.setUseDesignMetrics(true);
    QTextOption option = document.defaultTextOption();
    option.setTabStopDistance(usualTab);
    document.setDefaultTextOption(option);
    QTextBlockFormat block;
    QList<QTextOption::Tab> tabs;
    for (const qreal stop : _tabStops) tabs.append(QTextOption::Tab(stop, QTextOption::LeftTab));
    block.setTabPositions(tabs);
    QTextCursor(&document).setBlockFormat(block);
}

void StyledText::appendRuns(QTextDocument& document, qsizetype first, qsizetype count) const {
    QTextCursor cursor(&document);
    cursor.movePosition(QTextCursor::End);
    cursor.beginEditBlock();
    for (const Run& run : _runs.sliced(first, std::min(count, _runs.size() - first)))
        cursor.insertText(laidOut(run), charFormat(run.style));
    cursor.endEditBlock();
}

QFont printFont(qreal size, bool bold) {
    QFont font(u"DejaVu Sans"_s);
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(qRound(size));
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    // Spaced letters form no ligatures, so that searching a PDF for "Profil" finds it.
    font.setLetterSpacing(QFont::AbsoluteSpacing, noLigatures);
    return font;
}

QByteArray bytesOf(const StyledText& text, const QString& title, const QString& format) {
    if (format == "txt"_L1) {
        const QByteArray lines = text.plainText().toUtf8();
        return lines.isEmpty() || lines.endsWith('\n') ? lines : lines + '\n';
    }
    if (format == "html"_L1) return text.html(title).toUtf8();
    if (format == "pdf"_L1) return pdfOf(TextPages(text, title));
    throw std::invalid_argument("texts are written as pdf, html or txt");
}

}  // namespace sargan
