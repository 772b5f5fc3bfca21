#pragma once

#include "registers/RegisterBench.h"
#include "registers/RegisterClasses.h"
#include "registers/RegisterToolbars.h"
#include "support/Golden.h"

namespace sargan {

/// A register that holds these records alone.
template <class R>
struct Holding : RegisterBench {
    Holding(const char* type, const RecordClass<R>& cls, const QList<R>& records,
            Strings::Language language = Strings::Language::Keys)
        : RegisterBench(type, language) {
        load<R>(records, cls);
    }
};

/// A record with some of its fields set: with<Budget>({{&Budget::setDelai, 3}}).
template <class R>
R with(std::initializer_list<std::pair<void (R::*)(Int), int>> values) {
    R record;
    for (const auto& [set, value] : values) (record.*set)(value);
    return record;
}

/// A wreck register with these names in it, nothing selected.
struct Wrecks : RegisterBench {
    explicit Wrecks(const QStringList& names) : RegisterBench("Epaves") {
        QList<Epaves> list;
        for (const QString& name : names) {
            Epaves wreck;
            wreck.setNom(name);
            list << wreck;
        }
        load<Epaves>(list, epavesClass());
        shown->selectRows({});
    }
    QStringList names() const { return column(QStringLiteral("nom")); }
};

inline QStringList itemsOf(const RegisterBench& bench, const RegisterToolbar& bar) {
    QStringList identifiers;
    for (const ToolbarItem& item : toolbarItems(bench.shown->design(), bar))
        identifiers << QString::fromLatin1(item.identifier);
    return identifiers;
}
inline QString listBar(const RegisterBench& bench) {
    return itemsOf(bench, bench.shown->design().listBar).join(u' ');
}
inline QString editBar(const RegisterBench& bench) {
    return itemsOf(bench, bench.shown->design().editBar).join(u' ');
}
/// The items of the list's bar that can be pressed.
inline QString enabledItems(const RegisterBench& bench) {
    QStringList enabled;
    for (const QString& item : itemsOf(bench, bench.shown->design().listBar))
        if (validateToolbarItem(*bench.shown, item.toLatin1().constData())) enabled << item;
    return enabled.join(u' ');
}

/// Whether an empty list opens under a type name.
inline bool opensAs(const RegisterBench& bench, const QString& type) {
    return bench.document->loadDataRepresentation(golden::bytes(QStringLiteral("empty.carnet")), type);
}

}  // namespace sargan
