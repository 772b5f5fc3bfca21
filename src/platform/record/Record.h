#pragma once

#include <QByteArray>
#include <QString>
#include <memory>
#include <utility>
#include <vector>

#include "platform/archive/ArchivedObject.h"
#include "platform/archive/Moment.h"
#include "platform/archive/NumberArray.h"

namespace sargan {

/// A picture in a record: its TIFF, PNG or JPEG bytes. A picture object that holds none of these has no
/// bytes but is still there, in `Record::kept`.
struct Picture {
    QByteArray bytes;

    bool isAbsent() const { return bytes.isNull(); }
    friend bool operator==(const Picture&, const Picture&) = default;
};

/// The types that a record's fields are declared with.
using Int = qint32;
using Float = float;
using Text = QString;  ///< a null string is absent
using Date = Moment;
using Numbers = NumberArray;

/// What every record class has beside its fields: objects of classes that this program does not know,
/// found in the archive in place of a field's value, so that saving writes them back.
class Record {
public:
    /// The object kept for the field with this place in the field table; nil when there is none.
    ArchivedObject kept(int field) const;
    void keep(int field, ArchivedObject object);
    void dropKept(int field);
    bool hasKept() const { return _kept && !_kept->empty(); }

    friend bool operator==(const Record& a, const Record& b);

private:
    using Kept = std::vector<std::pair<int, ArchivedObject>>;
    std::shared_ptr<const Kept> _kept;  ///< null in nearly every record
};

/// Whether two objects hold the same, though in different archives: classes, values, and what is shared
/// among them.
bool sameContent(const ArchivedObject& a, const ArchivedObject& b);
/// The same for lists: equal numbers to the bit, and kept objects that hold the same.
bool sameContent(const NumberArray& a, const NumberArray& b);

}  // namespace sargan
