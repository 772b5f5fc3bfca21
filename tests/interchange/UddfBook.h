#pragma once

#include "interchange/InterchangeTests.h"

namespace sargan {

/// A logbook that reads dives from UDDF.
struct UddfBook : Book {
    /// A whole file with these elements for dives.
    static QByteArray file(const QByteArray& dives) {
        return "<uddf version=\"2.2.0\"><profiledata><repetitiongroup>" + dives +
               "</repetitiongroup></profiledata></uddf>";
    }
    /// The one dive of a file with this content of the dive's element.
    const Plongee& readDive(const QByteArray& content) {
        read("uddf", file("<dive>" + content + "</dive>"));
        return last();
    }
};

}  // namespace sargan
