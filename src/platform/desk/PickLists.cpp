#include "platform/desk/PickLists.h"

#include <QJsonArray>
#include <algorithm>

#include "platform/desk/UserDefaults.h"

namespace sargan {

void PickLists::load(const QString& key) {
    const QStringList stored = _defaults.list(key);
    if (_lists.value(key) == stored) return;
    _lists.insert(key, stored);
    Q_EMIT changed(key);
}

void PickLists::append(const QString& key, const QString& text) {
    _lists[key].append(text);
    Q_EMIT changed(key);
}

void PickLists::removeAt(const QString& key, const QList<qsizetype>& places) {
    QStringList& list = _lists[key];
    QStringList left;
    for (qsizetype i = 0; i < list.size(); ++i)
        if (!places.contains(i)) left.append(list[i]);
    if (left.size() == list.size()) return;
    list = left;
    Q_EMIT changed(key);
}

void PickLists::sort(const QString& key) {
    QStringList& list = _lists[key];
    const QStringList before = list;
    std::stable_sort(list.begin(), list.end(),
                     [](const QString& a, const QString& b) { return a.compare(b, Qt::CaseSensitive) < 0; });
    if (list != before) Q_EMIT changed(key);
}

void PickLists::store(const QString& key) {
    _defaults.store(key, QJsonArray::fromStringList(_lists.value(key)));
}

}  // namespace sargan
