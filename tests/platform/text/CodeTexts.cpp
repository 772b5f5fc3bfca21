#include "platform/text/CodeTexts.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <stdexcept>

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

// One literal, or several that the compiler joins.
const QString literals = uR"re(((?:"(?:[^"\\\n]|\\.)*"\s*)+))re"_s;

QString joined(const QString& source) {
    static const QRegularExpression literal(uR"re("((?:[^"\\\n]|\\.)*)")re"_s);
    QString text;
    for (auto it = literal.globalMatch(source); it.hasNext();) text += it.next().captured(1);
    return text.replace(u"\\\""_s, u"\""_s).replace(u"\\n"_s, u"\n"_s).replace(u"\\r"_s, u"\r"_s).replace(u"\\\\"_s, u"\\"_s);
}

std::vector<ArgumentKind> kindsNamed(const QString& types) {
    std::vector<ArgumentKind> kinds;
    for (const QString& type : types.split(u',', Qt::SkipEmptyParts)) {
        const QString name = type.trimmed();
        if (name == u"int"_s || name == u"qint64"_s || name == u"qsizetype"_s || name == u"WholeNumber"_s)
            kinds.push_back(ArgumentKind::Whole);
        else if (name == u"float"_s || name == u"double"_s || name == u"Float"_s)
            kinds.push_back(ArgumentKind::Real);
        else if (name == u"QString"_s)
            kinds.push_back(ArgumentKind::Text);
        else
            throw std::runtime_error("a message with an argument of type " + name.toStdString());
    }
    return kinds;
}

/// What a text looks like in the code. Which capture holds what; 0: the table is `table`.
struct Pattern {
    QRegularExpression expression;
    int types = 0;
    int tableAt = 0;
    int keyAt = 1;
    QString table = u"Interface"_s;
    bool isKeyFormat = false;  ///< the key's own placeholders say which arguments there are
};

const QList<Pattern>& patterns() {
    static const QList<Pattern> all{
        // Message<int>{"Carnet", "Found dives"}, {"Carnet", "Easy"}, {"Main", "OK", "OK"}
        {QRegularExpression(uR"re((?:Message<([^<>]*)>\s*\w*\s*)?\{\s*")re"_s +
                            uR"re(([A-Z][^"\\]*)"\s*,\s*)re"_s + literals + u"(?:,\\s*"_s + literals +
                            u")?\\}"_s),
         1,
         2,
         3,
         {}},
        // strings.ui("Untitled"), ui("Place")
        {QRegularExpression(u"\\bui\\(\\s*"_s + literals + u"\\)"_s)},
        // perform(QStringLiteral("Add dive"), …
        {QRegularExpression(u"\\b(?:perform|push)\\(\\s*QStringLiteral\\("_s + literals + u"\\)"_s)},
        // A document kind whose type name is looked up.
        {QRegularExpression(u"\\{"_s + literals + u",\\s*true,\\s*\""_s), 0, 0, 1, u"Main"_s},
        // "an array of %@ elements"_words
        {QRegularExpression(u"(?<!operator)"_s + literals + u"_words\\b"_s), 0, 0, 1, u"Archive"_s, true},
    };
    return all;
}

}  // namespace

QList<CodeText> textsIn(const QString& source, const QString& where) {
    QList<CodeText> texts;
    for (const Pattern& pattern : patterns())
        for (auto it = pattern.expression.globalMatch(source); it.hasNext();) {
            const QRegularExpressionMatch match = it.next();
            const QString key = joined(match.captured(pattern.keyAt));
            const auto line = source.left(match.capturedStart()).count(u'\n') + 1;
            texts.append(
                {pattern.tableAt ? match.captured(pattern.tableAt) : pattern.table,
                 key,
                 pattern.types         ? kindsNamed(match.captured(pattern.types))
                 : pattern.isKeyFormat ? placeholdersOf(key)
                                       : std::vector<ArgumentKind>(),
                 u"%1:%2"_s.arg(where).arg(line)});
        }
    return texts;
}

QList<CodeText> textsInCode(const QString& folder) {
    QList<CodeText> texts;
    for (QDirIterator it(folder, {u"*.h"_s, u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
         it.hasNext();) {
        QFile file(it.next());
        if (!file.open(QIODevice::ReadOnly))
            throw std::runtime_error("cannot read " + it.filePath().toStdString());
        texts += textsIn(QString::fromUtf8(file.readAll()), QDir(folder).relativeFilePath(it.filePath()));
    }
    return texts;
}
