#pragma once

#include <QIcon>

namespace sargan {

/// A picture of the program's own by name: "ajouterPl". Drawn in mid tones that show on light and dark.
inline QIcon iconNamed(const char* name) {
    return QIcon(QStringLiteral(":/icons/%1.svg").arg(QLatin1String(name)));
}

}  // namespace sargan
