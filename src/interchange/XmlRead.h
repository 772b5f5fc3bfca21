#pragma once

#include <QDate>
#include <QString>
#include <pugixml.hpp>
#include <string>
#include <vector>

#include "platform/archive/Moment.h"

/// Small readings of an XML tree that all readers share. Where a name occurs more than once among an
/// element's children, the last one counts.
namespace sargan::xml {

pugi::xml_node lastChild(pugi::xml_node parent, const char* name);

/// The texts of the element and of everything in it, one behind the other; present even when empty.
std::string wholeText(pugi::xml_node element);
QString text(pugi::xml_node element);
/// Whether its text is in several pieces, so that the white space between them matters.
bool isNested(pugi::xml_node element);

/// The leading number of the element's whole text, comma or point; 0 when there is none.
double number(pugi::xml_node element);
double leadingNumber(const char* text);
/// The leading whole number, within int32; 0 when there is none.
int integer(pugi::xml_node element);

/// What a date's or a time's three and two parts are called.
struct MomentNames {
    const char* year;
    const char* month;
    const char* day;
    const char* hour;
    const char* minute;
};

/// Days and times of day that a file tells. It remembers what it was asked: a day has several dives, and a
/// day has 1440 minutes, while the system's calendar is slow.
class Calendar {
public:
    /// Local midnight of the year, month and day that the element's children tell; a month 13 is the next
    /// January, as on any calendar, and a part that is missing the first of its kind. Absent when the element
    /// tells none of them or a date outside the years 1 to 9999.
    Moment day(pugi::xml_node element, const MomentNames& names);
    /// The same for hour and minute, on 1 January 2001.
    Moment timeOfDay(pugi::xml_node element, const MomentNames& names);

private:
    QDate _lastDay;
    Moment _midnight;              ///< of the last day
    std::vector<Moment> _minutes;  ///< by minute of the day; absent until asked for
};

}  // namespace sargan::xml
