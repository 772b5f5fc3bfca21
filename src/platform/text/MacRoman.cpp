#include "platform/text/MacRoman.h"

#include <QHash>

namespace sargan {

namespace {

/// What the bytes from 0x80 on stand for.
constexpr char16_t upperHalf[128] = {
    0x00C4, 0x00C5, 0x00C7, 0x00C9, 0x00D1, 0x00D6, 0x00DC, 0x00E1,
    0x00E0, 0x00E2, 0x00E4, 0x00E3, 0x00E5, 0x00E7, 0x00E9, 0x00E8,
    0x00EA, 0x00EB, 0x00ED, 0x00EC, 0x00EE, 0x00EF, 0x00F1, 0x00F3,
    0x00F2, 0x00F4, 0x00F6, 0x00F5, 0x00FA, 0x00F9, 0x00FB, 0x00FC,
    0x2020, 0x00B0, 0x00A2, 0x00A3, 0x00A7, 0x2022, 0x00B6, 0x00DF,
    0x00AE, 0x00A9, 0x2122, 0x00B4, 0x00A8, 0x2260, 0x00C6, 0x00D8,
    0x221E, 0x00B1, 0x2264, 0x2265, 0x00A5, 0x00B5, 0x2202, 0x2211,
    0x220F, 0x03C0, 0x222B, 0x00AA, 0x00BA, 0x03A9, 0x00E6, 0x00F8,
    0x00BF, 0x00A1, 0x00AC, 0x221A, 0x0192, 0x2248, 0x2206, 0x00AB,
    0x00BB, 0x2026, 0x00A0, 0x00C0, 0x00C3, 0x00D5, 0x0152, 0x0153,
    0x2013, 0x2014, 0x201C, 0x201D, 0x2018, 0x2019, 0x00F7, 0x25CA,
    0x00FF, 0x0178, 0x2044, 0x20AC, 0x2039, 0x203A, 0xFB01, 0xFB02,
    0x2021, 0x00B7, 0x201A, 0x201E, 0x2030, 0x00C2, 0x00CA, 0x00C1,
    0x00CB, 0x00C8, 0x00CD, 0x00CE, 0x00CF, 0x00CC, 0x00D3, 0x00D4,
    0xF8FF, 0x00D2, 0x00DA, 0x00DB, 0x00D9, 0x0131, 0x02C6, 0x02DC,
    0x00AF, 0x02D8, 0x02D9, 0x02DA, 0x00B8, 0x02DD, 0x02DB, 0x02C7,
};

/// Characters that decomposing leaves without a likeness, and what is written for them.
struct Likeness {
    char16_t character;
    const char* ascii;
};

constexpr Likeness likenesses[] = {
    {0x00A4, "?"},   {0x00A6, "|"},   {0x00AD, "-"},   {0x00D0, "D"},   {0x00D7, "x"},   {0x00DE, "Th"},
    {0x00F0, "d"},   {0x00FE, "th"},  {0x0110, "D"},   {0x0111, "d"},   {0x0126, "H"},   {0x0127, "h"},
    {0x0141, "L"},   {0x0142, "l"},   {0x014A, "N"},   {0x014B, "n"},   {0x0166, "T"},   {0x0167, "t"},
    {0x0218, "S"},   {0x0219, "s"},   {0x0237, "j"},   {0x1E9E, "SS"},  {0x2010, "-"},   {0x2011, "-"},
    {0x2012, "-"},   {0x2015, "-"},   {0x201B, "'"},   {0x201F, "\""},  {0x2032, "'"},   {0x2033, "\""},
    {0x2028, "\n"},  {0x2029, "\n"},  {0x2190, "<-"},  {0x2192, "->"},  {0x2212, "-"},   {0x2215, "/"},
    {0x2217, "*"},   {0x2219, "."},   {0x223C, "~"},   {0x00B9, "1"},   {0x2605, "*"},   {0x2606, "*"},
};

const QHash<char16_t, char>& bytesOfCharacters() {
    static const QHash<char16_t, char> table = [] {
        QHash<char16_t, char> made;
        for (int i = 0; i < 128; ++i) made.insert(upperHalf[i], char(0x80 + i));
        return made;
    }();
    return table;
}

bool appendKnown(QByteArray& bytes, char16_t character) {
    if (character < 0x80) {
        bytes.append(char(character));
        return true;
    }
    const auto found = bytesOfCharacters().find(character);
    if (found == bytesOfCharacters().end()) return false;
    bytes.append(*found);
    return true;
}

/// Behind the accents that stand as characters of their own from `at` on.
qsizetype afterMarks(QStringView text, qsizetype at) {
    while (at < text.size() && text[at].isMark()) ++at;
    return at;
}

/// One character and its accents, none of which may be in the encoding.
void appendNearest(QByteArray& bytes, const QString& cluster) {
    for (const Likeness& likeness : likenesses)
        if (cluster[0] == likeness.character) {
            bytes.append(likeness.ascii);
            return;
        }
    const qsizetype before = bytes.size();
    const QString parts = cluster.normalized(QString::NormalizationForm_KD);
    for (const QChar part : parts)
        if (!part.isMark() && !part.isLowSurrogate() && !appendKnown(bytes, part.unicode())) {
            bytes.resize(before);
            break;
        }
    if (bytes.size() == before) bytes.append('?');
}

}  // namespace

bool MacRoman::append(QByteArray& bytes, QStringView text) {
    bool isExact = true;
    for (qsizetype at = 0; at < text.size();) {
        const bool isPair =
            text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
        const qsizetype next = afterMarks(text, at + (isPair ? 2 : 1));
        // Letters and their accents go together, however the text spells them.
        if (next == at + 1 && appendKnown(bytes, text[at].unicode())) {
            at = next;
            continue;
        }
        const QString cluster =
            text.sliced(at, next - at).toString().normalized(QString::NormalizationForm_C);
        if (cluster.size() != 1 || !appendKnown(bytes, cluster[0].unicode())) {
            appendNearest(bytes, cluster);
            isExact = false;
        }
        at = next;
    }
    return isExact;
}

QString MacRoman::decode(QByteArrayView bytes) {
    QString text(bytes.size(), Qt::Uninitialized);
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const auto byte = uchar(bytes[i]);
        text[i] = QChar(byte < 0x80 ? char16_t(byte) : upperHalf[byte - 0x80]);
    }
    return text;
}

}  // namespace sargan
