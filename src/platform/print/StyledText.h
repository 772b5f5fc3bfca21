#pragma once

#include <QColor>
#include <QFont>
#include <QList>
#include <QString>

class QTextDocument;

namespace sargan {

/// How a run of text looks.
struct TextStyle {
    QColor color = {};  ///< invalid: the page's own
    bool bold = false;
    bool underline = false;
    qreal size = 12;       ///< in units of the page: points before the scale of printing
    bool hanging = false;  ///< its second and further lines begin at the text's first tab stop

    friend bool operator==(const TextStyle&, const TextStyle&) = default;
};

/// Colours of words on paper: what "green" and "blue" are where they have to be read.
namespace inkcolor {
inline constexpr QColor black{0, 0, 0};
inline constexpr QColor red{200, 0, 0};
inline constexpr QColor green{0, 120, 0};
inline constexpr QColor blue{0, 0, 200};
}  // namespace inkcolor

/// A text in runs of different styles, as reports and cards are made of. A carriage return ends a line, as
/// a line feed does.
class StyledText {
public:
    struct Run {
        QString text;
        TextStyle style;

        friend bool operator==(const Run&, const Run&) = default;
    };

    void append(const QString& text, const TextStyle& style = {});
    void append(const StyledText& other);
    bool isEmpty() const { return _runs.isEmpty(); }
    const QList<Run>& runs() const { return _runs; }

    /// Where tabs lead to, in units of the page; behind the last of them tabs are 40 wide.
    void setTabStops(const QList<qreal>& stops) { _tabStops = stops; }
    const QList<qreal>& tabStops() const { return _tabStops; }

    QString plainText() const;
    /// A page that needs no other file.
    QString html(const QString& title) const;
    /// Replaces the document's content. Its fonts are those of printing.
    void toDocument(QTextDocument& document) const;
    /// The same in pieces, for a long text on screen: an empty document, then so many runs at a time.
    void startDocument(QTextDocument& document) const;
    void appendRuns(QTextDocument& document, qsizetype first, qsizetype count) const;

    friend bool operator==(const StyledText&, const StyledText&) = default;

private:
    QList<Run> _runs;
    QList<qreal> _tabStops;
};

/// The font of everything that is printed: the same line breaks on every device.
QFont printFont(qreal size, bool bold = false);

/// Text -> the bytes of a file: "pdf" (portrait pages), "html" or "txt". Throws std::invalid_argument for
/// another format. A PDF needs ensureGuiApplication().
QByteArray bytesOf(const StyledText& text, const QString& title, const QString& format);

}  // namespace sargan
