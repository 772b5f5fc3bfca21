#pragma once

#include <QHash>
#include <QObject>
#include <QStringList>

namespace sargan {

class UserDefaults;

/// The lists of words that people keep for combo boxes: places, buddies, makers. One list in memory for the
/// whole process under each settings key; the settings hold its persistent copy. What is in memory and what
/// is stored may differ: only `load` and `sortAndStore` move entries between the two.
class PickLists : public QObject {
    Q_OBJECT

public:
    explicit PickLists(UserDefaults& defaults) : _defaults(defaults) {}

    /// The list in memory; empty when it was never loaded nor appended to.
    QStringList list(const QString& key) const { return _lists.value(key); }
    /// Replaces the list in memory by the stored one.
    void load(const QString& key);
    /// Adds an entry at the end, whatever it is and whether it is there already.
    void append(const QString& key, const QString& text);
    /// Removes the entries at these places; places outside the list are left out.
    void removeAt(const QString& key, const QList<qsizetype>& places);
    /// Upper case before lower case, as the characters' numbers go; stable.
    void sort(const QString& key);
    void store(const QString& key);
    void sortAndStore(const QString& key) {
        sort(key);
        store(key);
    }

Q_SIGNALS:
    void changed(const QString& key);

private:
    UserDefaults& _defaults;
    QHash<QString, QStringList> _lists;
};

}  // namespace sargan
