#pragma once

#include <QJsonArray>

#include "platform/document/Document.h"
#include "platform/document/DocumentError.h"
#include "platform/document/History.h"
#include "platform/record/RecordJson.h"
#include "platform/record/Slots.h"

namespace sargan {

/// Rows of a list, ascending, each once.
using Selection = QList<qsizetype>;

/// Rows within 0 … count - 1, ascending, each once.
Selection cleanSelection(Selection rows, qsizetype count);

/// A document that is an ordered list of records of class R, and a selection in it. Records are immutable;
/// every change puts another list in place, and undo puts the list before back.
template <class R>
class RecordDocument : public Document {
public:
    RecordDocument(const DocumentKind& kind, Desk& desk, const RecordClass<R>& cls)
        : Document(kind, desk), _class(cls) {}

    const RecordClass<R>& recordClass() const { return _class; }
    const Records<R>& records() const { return _now.records; }
    qsizetype count() const { return _now.records.size(); }
    const R& record(qsizetype row) const { return *_now.records.at(row); }

    const Selection& selection() const { return _now.selection; }
    /// The first selected row, or -1.
    qsizetype selectedRow() const { return _now.selection.isEmpty() ? -1 : _now.selection.first(); }
    /// Rows outside the list are left out.
    virtual void select(const Selection& rows) {
        const Selection clean = cleanSelection(rows, count());
        if (clean == _now.selection) return;
        _now.selection = clean;
        Q_EMIT selectionChanged();
    }

    bool canUndo() const override { return !isReadOnly() && _history.canUndo(); }
    bool canRedo() const override { return !isReadOnly() && _history.canRedo(); }
    QString undoName() const override { return _history.undoName(); }
    QString redoName() const override { return _history.redoName(); }
    void undo() override {
        if (canUndo()) travel(&History<Content>::undo);
    }
    void redo() override {
        if (canRedo()) travel(&History<Content>::redo);
    }

    /// Another list in place of this one, as one undo step.
    void perform(const QString& name, Records<R> records, Selection selection) {
        _history.push(name, _now);
        _now = {std::move(records), {}, newState()};
        _now.selection = cleanSelection(std::move(selection), count());
        contentReplaced();
    }

    /// The same as a part of the undo step before it: a slider that is being dragged.
    void amend(Records<R> records) {
        _now.records = std::move(records);
        _now.state = newState();
        contentReplaced();
    }
    /// The same without an undo step and without counting as an edit.
    void replaceQuietly(Records<R> records) {
        _now.records = std::move(records);
        contentReplaced();
    }

    DocumentSummary summary() const override {
        return {QString::fromLatin1(_class.name), _storedVersion.value_or(_class.version), count(), {}, {}};
    }

    QJsonObject dump() const override {
        QJsonArray list;
        for (const auto& record : records()) list.append(recordToJson(*record, _class.fields));
        return {{QStringLiteral("type"), QLatin1String(kind().typeName)},
                {QStringLiteral("class"), QLatin1String(_class.name)},
                {QStringLiteral("version"), _storedVersion.value_or(_class.version)},
                {QStringLiteral("records"), list}};
    }

    void loadRecords(const QJsonArray& list) override {
        Records<R> loaded;
        for (qsizetype i = 0; i < list.size(); ++i) {
            const QString path = QStringLiteral("records[%1]").arg(i);
            if (!list[i].isObject()) throw JsonError(path, QStringLiteral("expected an object"));
            loaded.append(std::make_shared<const R>(recordFromJson(list[i].toObject(), path, _class)));
        }
        perform(QStringLiteral("Load"), std::move(loaded), {});
    }

protected:
    QByteArray archive() const { return writeRecords(records(), _class); }

    /// The archive's records in place of the list. The first load has nothing to undo.
    void unarchive(const QByteArray& bytes) {
        qint32 version = _class.version;
        Records<R> read = readRecords(bytes, _class, &version);
        _storedVersion = read.isEmpty() ? std::nullopt : std::optional<qint32>(version);
        if (state() == 0)
            _now = {std::move(read), {}, newState()};
        else {
            _history.push(QStringLiteral("Revert"), _now);
            _now = {std::move(read), {}, newState()};
        }
        contentReplaced();
    }

    bool holdsContent(const QByteArray& bytes) const override {
        const Records<R> read = readRecords(bytes, _class);
        if (read.size() != count()) return false;
        for (qsizetype row = 0; row < count(); ++row)
            if (!sameArchived(*read[row], record(row))) return false;
        return true;
    }

    /// Whether saving `written` gives a record with exactly the archived values of `read`.
    bool sameArchived(const R& read, const R& written) const {
        return std::all_of(_class.slots.begin(), _class.slots.end(), [&](const Slot<R>& slot) {
            return !slot.isIn(_class.version) || sameInSlot(slot, read, written);
        });
    }

private:
    struct Content {
        Records<R> records;
        Selection selection;
        quint64 state = 0;
    };

    bool sameInSlot(const Slot<R>& slot, const R& read, const R& written) const {
        if (written.hasKept()) {
            const ArchivedObject kept = written.kept(fieldIndex(_class.fields, *slot.writtenFrom));
            if (!kept.isNil() && !sameContent(read.kept(fieldIndex(_class.fields, *slot.field)), kept))
                return false;
        }
        return std::visit([&](auto target) { return sameSource(read.*target, written, *slot.writtenFrom); },
                          slot.field->member);
    }
    template <class T>
    static bool sameSource(const T& read, const R& written, const Field<R>& from) {
        const auto source = std::get_if<T R::*>(&from.member);
        if (!source) return false;
        if constexpr (std::is_same_v<T, Numbers>)
            return sameContent(read, written.**source);
        else
            return sameValue(read, written.**source);
    }

    template <class Move>
    void travel(Move move) {
        (_history.*move)(_now);
        contentReplaced();
    }

    void contentReplaced() {
        setState(_now.state);
        Q_EMIT contentChanged();
        Q_EMIT selectionChanged();
    }

    const RecordClass<R>& _class;
    Content _now;
    History<Content> _history;
    std::optional<qint32> _storedVersion;
};

}  // namespace sargan
