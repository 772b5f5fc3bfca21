#pragma once

#include <QList>
#include <QString>

namespace sargan {

/// Dive numbers for a sentence, runs of three and more in short: "3, 5, 8–12".
QString numberList(const QList<int>& numbers);

}  // namespace sargan
