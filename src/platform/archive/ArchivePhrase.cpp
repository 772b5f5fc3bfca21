#include "platform/archive/ArchivePhrase.h"

#include <QStringList>

namespace sargan {

using namespace Qt::StringLiterals;

ArchivePhrase ArchivePhrase::name(QByteArrayView bytes) {
    constexpr qsizetype mostBytes = 80;
    return QString::fromUtf8(bytes.first(qMin(bytes.size(), mostBytes)));
}

QString ArchivePhrase::text() const {
    return text([](const char* english) { return QString::fromUtf8(english); });
}

QString ArchivePhrase::text(const Translation& translation) const {
    if (!_english) return _value;
    const QStringList pieces = translation(_english).split(u"%@"_s);
    QString filled = pieces.first();
    for (std::size_t i = 1; i < std::size_t(pieces.size()); ++i) {
        if (i <= _values.size()) filled += _values[i - 1].text(translation);
        filled += pieces[qsizetype(i)];
    }
    return filled;
}

}  // namespace sargan
