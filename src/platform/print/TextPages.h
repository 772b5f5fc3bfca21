#pragma once

#include "platform/print/Printable.h"
#include "platform/print/StyledText.h"

namespace sargan {

/// A styled text on portrait pages, numbered when there are several.
class TextPages : public Printable {
public:
    TextPages(StyledText text, QString title) : _text(std::move(text)), _title(std::move(title)) {}

    QString title() const override { return _title; }
    QPageLayout::Orientation orientation() const override { return QPageLayout::Portrait; }
    Pages pages(QSizeF area) const override;

private:
    StyledText _text;
    QString _title;
};

/// What stands below every page of something with several pages: its title and "2/5".
void drawFooter(QPainter& painter, QSizeF area, const QString& title, int page, int count);
/// The height that it takes, with the gap above it.
inline constexpr qreal footerHeight = 24;

}  // namespace sargan
