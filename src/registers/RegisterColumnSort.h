#pragma once

#include <QHash>
#include <QString>

namespace sargan {

/// Which way each column was sorted last. A click on another column keeps that column's direction, a click on
/// the same one turns it; a column that was never turned sorts descending.
class RegisterColumnSort {
public:
    /// Answers whether to sort ascending now.
    bool click(const QString& identifier) {
        bool ascending = _ascendingDirection.value(identifier, false);
        if (identifier == _idColonne) {
            ascending = !ascending;
            _ascendingDirection.insert(identifier, ascending);
        }
        _idColonne = identifier;
        return ascending;
    }
    /// The column clicked last; empty for none.
    const QString& column() const { return _idColonne; }
    bool isAscending() const { return _ascendingDirection.value(_idColonne, false); }

private:
    QHash<QString, bool> _ascendingDirection;
    QString _idColonne;
};

}  // namespace sargan
