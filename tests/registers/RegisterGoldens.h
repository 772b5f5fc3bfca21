#pragma once

#include <QJsonArray>

#include "platform/record/RecordJson.h"
#include "support/Golden.h"

/// A register's golden archive, what must be made of it, and what it is when it is saved again.
struct RegisterGolden {
    QString name;
    int version = 0;
    QByteArray bytes;
    QJsonArray records;
    QByteArray resaved;
};

/// All golden archives of the register with this stem: "epaves".
inline std::vector<RegisterGolden> registerGoldens(const QString& stem) {
    std::vector<RegisterGolden> goldens;
    for (const QString& file : golden::files(stem + QStringLiteral("-v*.") + stem)) {
        const QString name = file.section(u'.', 0, 0);
        goldens.push_back({name, golden::json(name).value(QLatin1String("version")).toInt(),
                           golden::bytes(file), golden::records(name),
                           golden::bytes(QStringLiteral("resaved-") + file)});
    }
    return goldens;
}

template <class R>
QJsonArray jsonOf(const sargan::Records<R>& records, const sargan::RecordClass<R>& cls) {
    QJsonArray list;
    for (const auto& record : records) list.append(sargan::recordToJson<R>(*record, cls.fields));
    return list;
}

/// The records as they are after saving in their own version: a wreck's third bearing is the first.
inline QJsonArray afterSaving(QJsonArray records) {
    for (QJsonValueRef record : records) {
        QJsonObject fields = record.toObject();
        if (fields.contains(QLatin1String("relevement3")))
            fields[QStringLiteral("relevement3")] = fields[QStringLiteral("relevement1")];
        record = fields;
    }
    return records;
}
