#pragma once

#include <QList>
#include <functional>

namespace sargan {

class Form;

/// What every document that is edited through a form can do, under whatever names its kind has for it.
class RecordEditor {
public:
    virtual ~RecordEditor() = default;

    virtual Form& editForm() = 0;
    virtual qsizetype rowCount() const = 0;
    virtual void selectRows(const QList<qsizetype>& rows) = 0;
    /// The form as for a new record.
    virtual void blankForm() = 0;
    /// Blanks the form, lets `fill` put in values, appends the record. Answers its row.
    virtual qsizetype addRecord(const std::function<void()>& fill) = 0;
    /// The form into the selected record.
    virtual void updateRecord() = 0;
    /// Removes the selected records after the question. Answers whether it was done.
    virtual bool deleteRecords() = 0;
};

}  // namespace sargan
