#pragma once

#include <QByteArray>

/// Bytes spelled for people: hex pairs, and ASCII text in single quotes. Blanks separate.
QByteArray assemble(const char* spelled);

/// An archive of these bytes: the 16 bytes of the header come before them.
QByteArray archiveOf(const QByteArray& body);

/// An archive of an NSMutableArray with `count` elements that follow.
/// Strings so far: 92 "@", 93 "NSMutableArray", 94 "NSArray", 95 "NSObject", 96 "i".
/// Objects so far: 92 the array, 93 NSMutableArray, 94 NSArray, 95 NSObject.
QByteArray rootArray(const char* count, const QByteArray& elements);

/// A root array of one record of class R, version 1, with these groups.
/// Adds string 97 "R" and objects 96 the record, 97 its class.
QByteArray recordOf(const QByteArray& groups);

/// The array of numbers with one number of this type that a record begins with, up to the number's value.
/// Adds strings 98 "NSNumber", 99 "NSValue", 9a "*", and 9b the type unless it is "i" (96);
/// and objects 98 the array, 99 the number, 9a NSNumber, 9b NSValue, 9c the type's C string.
QByteArray firstNumber(const char* count, char type);
