#include "Assemble.h"

QByteArray assemble(const char* spelled) {
    QByteArray bytes;
    for (const char* at = spelled; *at;) {
        if (*at == ' ') {
            ++at;
        } else if (*at == '\'') {
            for (++at; *at != '\''; ++at) bytes += *at;
            ++at;
        } else {
            bytes += QByteArray::fromHex(QByteArray(at, 2));
            at += 2;
        }
    }
    return bytes;
}

QByteArray archiveOf(const QByteArray& body) {
    return assemble("04 0b 'streamtyped' 81 e8 03") + body;
}

QByteArray rootArray(const char* count, const QByteArray& elements) {
    return archiveOf(assemble("84 01 '@' 84 84 84 0e 'NSMutableArray' 00 84 84 07 'NSArray' 00"
                              "84 84 08 'NSObject' 00 85 84 01 'i'") +
                     assemble(count) + elements + assemble("86"));
}

QByteArray recordOf(const QByteArray& groups) {
    return rootArray("01", assemble("92 84 84 84 01 'R' 01 95") + groups + assemble("86"));
}

QByteArray firstNumber(const char* count, char type) {
    const QByteArray letter =
        type == 'i' ? assemble("84 96 96") : assemble("84 84 01") + type + assemble("9b");
    return assemble("92 84 93 96") + assemble(count) +
           assemble("92 84 84 84 08 'NSNumber' 00 84 84 07 'NSValue' 00 95 84 01 '*'") + letter;
}
