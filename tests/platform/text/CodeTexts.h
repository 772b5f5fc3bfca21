#pragma once

#include <QList>
#include <QString>

#include "platform/text/Message.h"

/// One localised text that the code asks for.
struct CodeText {
    QString table;
    QString key;
    std::vector<sargan::ArgumentKind> arguments;
    QString where;  ///< file and line
};

/// Every text that the sources under a folder name in so many words: messages, texts of the interface,
/// names of undo steps, and localised type names. Throws for an argument type that messages do not have.
QList<CodeText> textsInCode(const QString& folder);

/// The same for one source text.
QList<CodeText> textsIn(const QString& source, const QString& where);
