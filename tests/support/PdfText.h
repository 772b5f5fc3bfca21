#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>
#include <stdexcept>

/// What another program reads in a PDF.
namespace pdf {

inline QByteArray through(const QString& program, const QStringList& words, const QByteArray& pdf) {
    QProcess process;
    process.start(program, words);
    if (!process.waitForStarted()) throw std::runtime_error("cannot start " + program.toStdString());
    process.write(pdf);
    process.closeWriteChannel();
    if (!process.waitForFinished() || process.exitCode() != 0)
        throw std::runtime_error(program.toStdString() + ": " + process.readAllStandardError().toStdString());
    return process.readAllStandardOutput();
}

/// The pages' texts, laid out as on paper.
inline QStringList pages(const QByteArray& bytes) {
    QStringList texts =
        QString::fromUtf8(through(QStringLiteral("pdftotext"),
                                  {QStringLiteral("-layout"), QStringLiteral("-"), QStringLiteral("-")},
                                  bytes))
            .split(u'\f');
    texts.removeLast();
    return texts;
}

/// The same as words with one blank between.
inline QString words(const QByteArray& bytes) {
    return pages(bytes).join(u' ').simplified();
}

/// "Page size:      595 x 842 pts (A4)" -> "595 x 842 pts (A4)".
inline QString info(const QByteArray& bytes, const QString& key) {
    const QString told = QString::fromUtf8(through(QStringLiteral("pdfinfo"), {QStringLiteral("-")}, bytes));
    for (const QString& line : told.split(u'\n'))
        if (line.startsWith(key + u':')) return line.mid(key.size() + 1).trimmed();
    return {};
}

}  // namespace pdf
