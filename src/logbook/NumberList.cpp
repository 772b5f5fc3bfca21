#include "logbook/NumberList.h"

#include <QStringList>

namespace sargan {

QString numberList(const QList<int>& numbers) {
    constexpr qsizetype shortestRun = 3;
    QStringList parts;
    for (qsizetype first = 0; first < numbers.size();) {
        qsizetype last = first;
        while (last + 1 < numbers.size() && qint64(numbers[last + 1]) == qint64(numbers[last]) + 1) ++last;
        if (last - first + 1 < shortestRun) last = first;
        parts << QString::number(numbers[first]);
        if (last > first) parts.last() += u'–' + QString::number(numbers[last]);
        first = last + 1;
    }
    return parts.join(QStringLiteral(", "));
}

}  // namespace sargan
