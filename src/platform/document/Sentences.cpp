#include "platform/document/Sentences.h"

#include "platform/archive/ArchiveError.h"
#include "platform/document/DocumentError.h"
#include "platform/files/SafeFile.h"
#include "platform/text/Strings.h"

namespace sargan {

namespace {

QString translated(const Strings& strings, const FileMessage& message) {
    const QByteArray format = message.format.toUtf8();
    const QString found = strings.lookup(message.key.toUtf8().constData(), format.constData(), "Files");
    std::vector<FormatArgument> arguments;
    for (const QString& argument : message.arguments) arguments.emplace_back(argument);
    const std::vector<ArgumentKind> kinds(arguments.size(), ArgumentKind::Text);
    return fillFormat(placeholdersTake(found, kinds) ? found : message.format, arguments);
}

/// The message with what is wrong with a file's bytes in the current language too.
FileMessage messageIn(const Strings& strings, const DocumentError& error) {
    FileMessage message = error.message();
    if (error.damage())
        message.arguments.last() = error.damage()->detail(
            [&strings](const char* english) { return strings.lookup(english, english, "Archive"); });
    return message;
}

}  // namespace

QString sentenceIn(const Strings& strings, const std::exception& error) {
    if (const auto* save = dynamic_cast<const SaveError*>(&error))
        return translated(strings, save->message());
    if (const auto* read = dynamic_cast<const ReadError*>(&error))
        return translated(strings, read->message());
    if (const auto* document = dynamic_cast<const DocumentError*>(&error))
        if (!document->message().key.isEmpty())
            return DocumentError::onOneLine(DocumentError::withPath(
                document->path(), translated(strings, messageIn(strings, *document))));
    return sentenceOf(error);
}

}  // namespace sargan
