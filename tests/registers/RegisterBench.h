#pragma once

#include <QtTest>

#include "registers/Epaves.h"
#include "registers/Materiel.h"
#include "registers/Register.h"
#include "registers/RegisterDocument.h"
#include "support/TestDesk.h"

namespace sargan {

/// An empty register of a kind on a desk of its own. Texts are their keys unless another language is asked
/// for; the clock stands at 7 June 2016 14:30.
struct RegisterBench {
    TestDesk desk;
    QStringList log;
    std::unique_ptr<Document> document;
    Register* shown = nullptr;

    explicit RegisterBench(const char* type, Strings::Language language = Strings::Language::Keys) {
        desk.strings.setLanguage(language);
        desk.desk.log = Log([this](const QString& line) { log << line; });
        const DocumentKind* kind = desk.kinds.named(QLatin1String(type), desk.desk);
        document = kind->create(*kind, desk.desk);
        shown = dynamic_cast<Register*>(document.get());
        if (!shown) qFatal("%s is no register", type);
    }

    Form& form() const { return shown->form(); }
    int at(const QString& control) const { return form().find(control); }
    QString text(const QString& control) const { return form().text(at(control)); }
    int tag(const QString& control) const { return form().tag(at(control)); }
    bool isHidden(const QString& control) const { return form().state(at(control)).hidden; }
    bool isEnabled(const QString& control) const { return form().state(at(control)).enabled; }
    QString date(const QString& control) const { return form().date(at(control)).iso(); }
    void fill(const QString& control, const QString& value) const { form().fill(at(control), value); }

    /// Adds a record with these controls filled; answers its row.
    qsizetype add(const QList<std::pair<QString, QString>>& values = {}) const {
        return shown->addRecord([&] {
            for (const auto& [control, value] : values) fill(control, value);
        });
    }
    /// Changes a record through the form.
    void set(qsizetype row, const QList<std::pair<QString, QString>>& values) const {
        shown->selectRows({row});
        for (const auto& [control, value] : values) fill(control, value);
        shown->updateRecord();
    }
    /// Puts these records in place of the list, as if they had been read from a file.
    template <class R>
    void load(const QList<R>& list, const RecordClass<R>& cls) const {
        Records<R> records;
        for (const R& one : list) records.append(std::make_shared<const R>(one));
        document->readBytes(writeRecords(records, cls), document->kind().currentTypeName(document->desk()));
    }
    template <class R>
    const R& record(qsizetype row) const {
        return dynamic_cast<const RegisterDocument<R>&>(*document).record(row);
    }

    TableCell cell(qsizetype row, const QString& column) const {
        const QList<TableColumn> columns = shown->tableColumns();
        for (int i = 0; i < int(columns.size()); ++i)
            if (columns[i].identifier == column) return shown->tableCell(row, i);
        return {QStringLiteral("no such column")};
    }
    /// What a column shows from the first row to the last.
    QStringList column(const QString& identifier) const {
        QStringList texts;
        for (qsizetype row = 0; row < shown->rowCount(); ++row) texts << cell(row, identifier).text;
        return texts;
    }
};

}  // namespace sargan
