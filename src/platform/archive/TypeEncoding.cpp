#include "platform/archive/TypeEncoding.h"

#include "platform/archive/ByteCursor.h"

namespace sargan {

namespace {

constexpr int mostLevels = 16;
constexpr quint64 mostElements = quint64(1) << 40;
// Room for struct names: a type may have this many letters more than the bytes that it describes at least.
constexpr quint64 freeLetters = 64;
constexpr quint64 lettersPerByte = 32;

bool isSimple(char code) {
    return code && std::strchr("cCBsSiIlLqQfd@#*+:%", code);
}
bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

class TypeChecker {
public:
    TypeChecker(QByteArrayView type, qint64 offset) : _type(type), _offset(offset) {}

    void check() {
        if (_type.isEmpty()) fail("it is empty"_words);
        quint64 least = 0;
        while (_at < _type.size()) least = sum(least, item(0));
        if (quint64(_type.size()) > freeLetters + lettersPerByte * least)
            fail("it describes hardly any value"_words);
    }

private:
    [[noreturn]] void fail(ArchiveWords why) const {
        failArchive(_offset, "a type encoding"_words,
                    {"\"%@\", and %@"_words, {ArchivePhrase::name(_type), why}});
    }

    char next() const { return _at < _type.size() ? _type[_at] : '\0'; }

    quint64 sum(quint64 a, quint64 b) const {
        if (a + b > mostElements) fail("its size overflows"_words);
        return a + b;
    }

    /// Steps over one item and returns how many bytes its value takes at least.
    quint64 item(int level) {
        if (level > mostLevels) fail("it is nested too deeply"_words);
        const char code = next();
        ++_at;
        if (code == '[') return array(level);
        if (code == '{') return structure(level);
        if (!isSimple(code)) fail("it has an unknown letter or unbalanced brackets"_words);
        return 1;
    }

    quint64 array(int level) {
        if (!isDigit(next())) fail("an array has no length"_words);
        quint64 count = 0;
        for (; isDigit(next()); ++_at) {
            count = count * 10 + quint64(next() - '0');
            if (count > mostElements) fail("an array length overflows"_words);
        }
        const quint64 element = item(level + 1);
        if (next() != ']') fail("its brackets are unbalanced"_words);
        ++_at;
        if (element == 0) fail("the elements of an array hold nothing"_words);
        if (count > mostElements / element) fail("an array length overflows"_words);
        return count * element;
    }

    quint64 structure(int level) {
        while (next() && !std::strchr("={}[]", next())) ++_at;
        if (next() != '=') fail("a struct has no fields"_words);
        ++_at;
        if (next() == '}') fail("a struct has no fields"_words);
        quint64 least = 0;
        while (next() != '}') least = sum(least, item(level + 1));
        ++_at;
        return least;
    }

    QByteArrayView _type;
    qint64 _offset;
    qsizetype _at = 0;
};

}  // namespace

void checkTypeEncoding(QByteArrayView type, qint64 offset) {
    TypeChecker(type, offset).check();
}

quint64 TypeCursor::takeLength() {
    quint64 length = 0;
    while (isDigit(peek())) length = length * 10 + quint64(take() - '0');
    return length;
}

void TypeCursor::skipName() {
    while (take() != '=') {
    }
}

void TypeCursor::skipItem() {
    int open = 0;
    do {
        const char code = take();
        open += (code == '[' || code == '{') - (code == ']' || code == '}');
    } while (open > 0);
}

}  // namespace sargan
