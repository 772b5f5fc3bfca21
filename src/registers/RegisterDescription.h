#pragma once

#include "platform/desk/Desk.h"
#include "platform/form/SystemColors.h"
#include "platform/record/Slots.h"
#include "registers/RegisterDesign.h"

namespace sargan {

class CardWriter;
template <class R>
class RegisterDocument;

/// One control of a register's form.
template <class R>
struct RegisterControl {
    ControlSpec spec;
    const Field<R>* field = nullptr;  ///< that it maps; null: shown or computed only
    /// For a number that is shown otherwise than as it is: the typed text as value, and the value as text.
    Float (*valueOf)(const QString& text) = nullptr;
    QString (*textOf)(Float value) = nullptr;
};

/// One column of a register's table. Its identifier is the name of its field.
template <class R>
struct RegisterColumn {
    using Text = QString (*)(const R&, const Desk&);
    using Color = QColor (*)(const R&, const Desk&);

    const Field<R>* field;
    Message<> title;
    int characters;  ///< width that a usual value needs
    Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
    Text text = nullptr;    ///< null: the field's value as it is
    Color color = nullptr;  ///< of the text; an invalid one is the default
    /// For a gauge: per cent. The text is that number, and the column is sorted by it.
    double (*percent)(const R&, const Desk&) = nullptr;
};

/// A register: everything that makes it this one. The engine, RegisterDocument, does the rest.
template <class R>
struct RegisterDescription {
    RegisterDesign design;
    const RecordClass<R>& (*recordClass)();
    std::vector<RegisterControl<R>> controls;
    std::vector<RegisterColumn<R>> columns;
    /// The text colour of columns that have no rule of their own.
    typename RegisterColumn<R>::Color otherColor = nullptr;
    /// The date by which `info` tells the earliest and the latest; null when there is none.
    const Field<R>* date = nullptr;
    /// Writes the synthesis card of the record at `row`; null when the register has none.
    void (*card)(CardWriter& card, const R& record, qsizetype row) = nullptr;

    // --- Where this register differs; null where it does not. All work on document.form(). ---

    /// What follows from the controls' values: captions, hidden and enabled states.
    void (*refresh)(RegisterDocument<R>& document) = nullptr;
    /// After the blank values have been set.
    void (*blanked)(RegisterDocument<R>& document) = nullptr;
    /// In adding a record, after the form was blanked and before it is filled. What it throws ends the
    /// adding.
    void (*carryOver)(RegisterDocument<R>& document) = nullptr;
    /// When editing of a control has ended, before the refresh.
    void (*edited)(RegisterDocument<R>& document, int control) = nullptr;
    /// Values of a new record that no control holds.
    void (*built)(R& record) = nullptr;
    /// When a file has no list at all: may write to the log before the load fails.
    void (*noList)(Desk& desk) = nullptr;
};

}  // namespace sargan
