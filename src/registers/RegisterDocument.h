#pragma once

#include "platform/form/FieldControl.h"
#include "platform/text/Numbers.h"
#include "registers/Register.h"
#include "registers/RegisterDescription.h"
#include "registers/RegisterSort.h"
#include "registers/RegisterToolbars.h"
#include "registers/RegisterWords.h"

namespace sargan {

/// The document of any register: its records of class R, told apart from the other registers by nothing but
/// its description.
template <class R>
class RegisterDocument : public RecordDocument<R>, public Register {
public:
    using Document::desk;
    using Document::strings;
    using RecordDocument<R>::count;
    using RecordDocument<R>::record;
    using RecordDocument<R>::records;
    using RecordDocument<R>::selectedRow;

    RegisterDocument(const DocumentKind& kind, Desk& desk, const RegisterDescription<R>& description)
        : RecordDocument<R>(kind, desk, description.recordClass()),
          Register(description.design, specsOf(description), *this),
          _description(description) {
        for (int i = 0; i < controlCount(); ++i)
            if (const Field<R>* field = controlAt(i).field)
                form().addAlias(QString::fromLatin1(field->name), i);
        blankForm();
    }

    const RegisterDescription<R>& description() const { return _description; }

    // --- Document ---

    QByteArray dataRepresentationOfType(const QString&) override { return this->archive(); }
    /// The list is replaced before the type is looked at, so that it is there even when this answers false.
    bool loadDataRepresentation(const QByteArray& bytes, const QString& type) override {
        const bool isOwn = !design().checksType || type == this->kind().currentTypeName(desk());
        try {
            this->unarchive(bytes);
        } catch (const ArchiveError&) {
            if (isOwn && _description.noList) _description.noList(desk());
            throw;
        }
        if (!isOwn) return false;
        refresh();
        selectLast(count() - 1, true);
        return true;
    }
    DocumentSummary summary() const override {
        DocumentSummary summary = RecordDocument<R>::summary();
        if (!_description.date) return summary;
        const auto member = std::get<Date R::*>(_description.date->member);
        Date first, last;
        for (const auto& held : records()) {
            const Date& date = (*held).*member;
            if (!date.isPresent()) continue;
            if (!first.isPresent() || date.seconds() < first.seconds()) first = date;
            if (!last.isPresent() || date.seconds() > last.seconds()) last = date;
        }
        summary.firstDate = first.iso();
        summary.lastDate = last.iso();
        return summary;
    }
    RecordEditor* editor() override { return this; }
    TableSource* table() override { return this; }

    // --- Register ---

    qsizetype rowCount() const override { return count(); }
    const Selection& selectedRows() const override { return this->selection(); }
    void selectRows(const QList<qsizetype>& rows) override {
        this->select(rows);
        loadSelected();  // also when the selection is the same: the form may have been blanked since
    }
    QList<ToolbarState> toolbars() const override { return registerToolbars(*this); }
    bool hasCard() const override { return _description.card != nullptr; }
    StyledText card(qsizetype row) const override {
        CardWriter writer(desk(), this->path());
        if (_description.card) _description.card(writer, record(row), row);
        return writer.take();
    }

    // --- Table ---

    QList<TableColumn> tableColumns() const override {
        QList<TableColumn> list;
        for (const RegisterColumn<R>& column : _description.columns)
            list.append(
                {QString::fromLatin1(column.field->name), column.title, column.characters, column.alignment});
        return list;
    }
    TableCell tableCell(qsizetype row, int place) const override {
        const RegisterColumn<R>& column = _description.columns.at(std::size_t(place));
        const R& shown = record(row);
        TableCell cell;
        if (column.percent) {
            const double percent = column.percent(shown, desk());
            cell.text = registerwords::formatted(u"%f", percent);
            cell.gauge = std::isfinite(percent) ? std::clamp(percent / 100, 0.0, 1.0) : 0.0;
        } else {
            cell.text = column.text ? column.text(shown, desk()) : plainText(shown, *column.field);
        }
        if (const auto color = column.color ? column.color : _description.otherColor)
            cell.color = color(shown, desk());
        return cell;
    }
    /// A field's value as tables show it when nothing else is said.
    static QString plainText(const R& record, const Field<R>& field) {
        return field.visit(record, [](const auto& value) { return registersort::shown(value); });
    }

    /// The record that the form's values make.
    R recordFromForm() const {
        R made;
        for (int i = 0; i < controlCount(); ++i)
            if (const Field<R>* field = controlAt(i).field)
                std::visit([&](auto member) { take(made, i, member); }, field->member);
        if (_description.built) _description.built(made);
        keepUnknownObjects(made);
        return made;
    }

protected:
    void loadRow(qsizetype row) override {
        _loaded = records()[row];
        for (int i = 0; i < controlCount(); ++i)
            if (const Field<R>* field = controlAt(i).field)
                std::visit([&](auto member) { show(i, member, *field); }, field->member);
    }
    qsizetype appendFromForm() override {
        Records<R> list = records();
        list.append(std::make_shared<const R>(recordFromForm()));
        const qsizetype row = list.size() - 1;
        this->perform(QStringLiteral("Add card"), std::move(list), {row});
        return row;
    }
    void replaceFromForm(qsizetype row, bool amends) override {
        auto made = std::make_shared<const R>(recordFromForm());
        if (isSame(*made, record(row))) return;
        Records<R> list = records();
        list[row] = std::move(made);
        if (amends)
            this->amend(std::move(list));
        else
            this->perform(QStringLiteral("Edit card"), std::move(list), this->selection());
    }
    void removeSelected() override {
        const Selection& selected = this->selection();
        Records<R> kept;
        kept.reserve(count());
        for (qsizetype row = 0; row < count(); ++row)
            if (!std::binary_search(selected.begin(), selected.end(), row)) kept.append(records()[row]);
        this->perform(QStringLiteral("Delete cards"), std::move(kept), {});
    }
    void repeatLastRecord() override {
        Records<R> list = records();
        list.insert(count() - 1, list.last());
        this->replaceQuietly(std::move(list));
    }
    void sortRows(const QString& identifier, bool ascending) override {
        const std::vector<qsizetype> order = sortedOrder(columnNamed(identifier), ascending);
        if (std::is_sorted(order.begin(), order.end())) return;
        Records<R> list;
        list.reserve(count());
        Selection selected;
        for (const qsizetype row : order) {
            if (std::binary_search(this->selection().begin(), this->selection().end(), row))
                selected.append(list.size());
            list.append(records()[row]);
        }
        this->perform(QStringLiteral("Sort"), std::move(list), std::move(selected));
    }
    void checkColumn(const QString& identifier) const override { columnNamed(identifier); }
    quint64 listState() const override { return this->state(); }

    void refreshOwn() override {
        if (_description.refresh) _description.refresh(*this);
    }
    void blankOwn() override {
        _loaded.reset();
        if (_description.blanked) _description.blanked(*this);
    }
    void carryOver() override {
        if (_description.carryOver) _description.carryOver(*this);
    }
    void editedOwn(int control) override {
        if (_description.edited) _description.edited(*this, control);
    }

private:
    static std::vector<ControlSpec> specsOf(const RegisterDescription<R>& description) {
        std::vector<ControlSpec> specs;
        for (const RegisterControl<R>& control : description.controls) specs.push_back(control.spec);
        return specs;
    }
    int controlCount() const { return int(_description.controls.size()); }
    const RegisterControl<R>& controlAt(int i) const { return _description.controls[std::size_t(i)]; }
    const RegisterColumn<R>& columnNamed(const QString& identifier) const {
        for (const RegisterColumn<R>& column : _description.columns)
            if (identifier == QLatin1String(column.field->name)) return column;
        throw UnknownKeyError(identifier, QLatin1String(R::className));
    }

    template <class T>
    void show(int i, T R::*member, const Field<R>& field) {
        const T& value = (*_loaded).*member;
        if constexpr (std::is_same_v<T, Float>)
            if (controlAt(i).textOf) return form().setText(i, controlAt(i).textOf(value));
        if constexpr (std::is_same_v<T, Picture>) {
            // A picture that nobody can read is there all the same: no bytes, but not none.
            const bool isUnreadable = value.isAbsent() && !keptObject(field).isNil();
            if (isUnreadable) return form().setImage(i, QByteArray(""));
        }
        showField(form(), i, value);
    }
    template <class T>
    void take(R& made, int i, T R::*member) const {
        takeField(form(), i, made.*member);
        if constexpr (std::is_same_v<T, Float>) {
            const RegisterControl<R>& control = controlAt(i);
            if (control.valueOf) made.*member = control.valueOf(form().text(i));
            // A number that nobody typed over stays as it was to the bit, even when it is none at all.
            if (!_loaded) return;
            const Float before = (*_loaded).*member;
            const bool isOdd = control.valueOf && before < 0;
            const QString shown = control.textOf ? control.textOf(before) : shortest(before);
            if (!isOdd && form().text(i) == shown) made.*member = before;
        }
    }
    ArchivedObject keptObject(const Field<R>& field) const {
        return _loaded->kept(fieldIndex(this->recordClass().fields, field));
    }
    /// What a file had in place of a value stays while nobody changes the field.
    void keepUnknownObjects(R& made) const {
        if (!_loaded || !_loaded->hasKept()) return;
        for (int i = 0; i < controlCount(); ++i) {
            const Field<R>* field = controlAt(i).field;
            if (!field) continue;
            const ArchivedObject kept = keptObject(*field);
            if (kept.isNil()) continue;
            const bool isRemoved = field->template is<Picture>() && form().state(i).image.isNull();
            if (!isRemoved && isSameField(made, *_loaded, *field))
                made.keep(fieldIndex(this->recordClass().fields, *field), kept);
        }
    }
    static bool isSameField(const R& a, const R& b, const Field<R>& field) {
        return std::visit([&](auto member) { return sameValue(a.*member, b.*member); }, field.member);
    }
    /// In all that the form shows.
    bool isSame(const R& a, const R& b) const {
        if (!(static_cast<const Record&>(a) == static_cast<const Record&>(b))) return false;
        return std::all_of(_description.controls.begin(), _description.controls.end(),
                           [&](const RegisterControl<R>& control) {
                               return !control.field || isSameField(a, b, *control.field);
                           });
    }

    std::vector<qsizetype> sortedOrder(const RegisterColumn<R>& column, bool ascending) const {
        if (column.percent)
            return registersort::order(count(), ascending,
                                       [&](qsizetype row) { return column.percent(record(row), desk()); });
        return std::visit(
            [&](auto member) {
                return registersort::order(
                    count(), ascending, [&](qsizetype row) -> const auto& { return record(row).*member; });
            },
            column.field->member);
    }

    const RegisterDescription<R>& _description;
    RecordPointer<R> _loaded;  ///< the record that the controls came from; null for a blank form
};

/// How a document kind makes a register: createRegister<&repEpaves>.
template <auto describe>
std::unique_ptr<Document> createRegister(const DocumentKind& kind, Desk& desk) {
    using Description = std::remove_cvref_t<decltype(describe())>;
    return [&]<class R>(const RegisterDescription<R>& description) -> std::unique_ptr<Document> {
        return std::make_unique<RegisterDocument<R>>(kind, desk, description);
    }(static_cast<const Description&>(describe()));
}

}  // namespace sargan
