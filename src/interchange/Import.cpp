#include "interchange/Import.h"

#include <QFileInfo>

#include "interchange/Formats.h"
#include "interchange/ImportError.h"
#include "logbook/DiveBatch.h"
#include "platform/files/SafeFile.h"

namespace sargan {

namespace {

/// Bytes of a file: a tree of it takes several times as many.
constexpr qint64 largestImport = qint64{1} << 30;

/// More than a diver dives; what asks for more is made to use up the memory.
constexpr qsizetype mostDives = 200'000;

class Import {
public:
    Import(Carnet& carnet, const DiveReader& reader, ImportAlerts alerts)
        : _carnet(carnet),
          _reader(reader),
          _prompt(alerts == ImportAlerts::Collected ? _collector : carnet.desk().prompt),
          _progress(carnet.desk().prompt.startProgress(carnet.strings().ui("Reading dives…"))) {}

    /// Answers false when the person stopped it. `share` of the work is done before, `width` is this file's.
    bool take(const QByteArray& bytes, double share, double width) {
        const std::unique_ptr<DiveSource> source = _reader.open(bytes);
        const qsizetype dives = source->count();
        _result.passedOver += source->passedOver();
        if (dives == 0) noteOtherFormat(bytes);
        if (dives > mostDives - (_batch ? _batch->count() : 0))
            throw documentError(interchangeproblem::tooManyDives,
                                {QString::number(dives), QString::number(mostDives)});
        if (dives > 0 && !_batch) _batch.emplace(_carnet, _prompt);
        for (qsizetype i = 0; i < dives; ++i) {
            if (_progress && !_progress->advance(share + width * double(i) / double(dives))) return false;
            _batch->add([&](DiveForm& form) {
                _collector.setNumber(_batch->number());
                source->fill(form, i);
            });
        }
        return true;
    }

    ImportResult finish(const QStringList& files, bool isComplete) {
        _progress.reset();
        _result.files = files;
        _result.isCancelled = !isComplete;
        if (!isComplete || !_batch) return _result;
        _result.alerts = _collector.list();
        _result.dives = _batch->count();
        _batch->commit();
        return _result;
    }

private:
    void noteOtherFormat(const QByteArray& bytes) {
        const DiveReader* other = _reader.recognises(bytes) ? nullptr : diveReaderFor(bytes);
        if (other) _result.otherFormat = other->title();
    }

    Carnet& _carnet;
    const DiveReader& _reader;
    DiveAlerts _collector;
    Prompt& _prompt;
    std::unique_ptr<Progress> _progress;
    std::optional<DiveBatch> _batch;  ///< made with the first dive
    ImportResult _result;
};

QString quoted(const QStringList& files, const Strings& strings) {
    if (files.size() == 1) return strings.text(Message<QString>{"Interface", "“%@”", "“%@”"}, files.first());
    return strings.text(Message<int>{"Interface", "%d files", "%d files"}, int(files.size()));
}

QString countSentence(const ImportResult& result, const Strings& strings) {
    const QString files = quoted(result.files, strings);
    if (result.dives == 0)
        return strings.text(
            Message<QString>{"Interface", "No dive was read from %@.", "No dive was read from %@."}, files);
    if (result.dives == 1)
        return strings.text(
            Message<QString>{"Interface", "1 dive was read from %@.", "1 dive was read from %@."}, files);
    return strings.text(
        Message<int, QString>{"Interface", "%d dives were read from %@.", "%d dives were read from %@."},
        int(result.dives), files);
}

QString passedOverSentence(qsizetype dives, const Strings& strings) {
    if (dives == 1)
        return strings.text({"Interface", "1 dive was passed over: only the last group of a file is read.",
                             "1 dive was passed over: only the last group of a file is read."});
    return strings.text(
        Message<int>{"Interface", "%d dives were passed over: only the last group of a file is read.",
                     "%d dives were passed over: only the last group of a file is read."},
        int(dives));
}

ImportResult importFrom(Carnet& carnet, const QStringList& names, const DiveReader& reader,
                        ImportAlerts alerts, const std::function<QByteArray(qsizetype)>& bytesOf) {
    if (carnet.isReadOnly()) throw documentError(documentproblem::lookOnly, {}, carnet.path());
    Import import(carnet, reader, alerts);
    const double width = 1.0 / double(std::max<qsizetype>(1, names.size()));
    bool isComplete = true;
    for (qsizetype i = 0; i < names.size() && isComplete; ++i)
        isComplete = import.take(bytesOf(i), double(i) * width, width);
    return import.finish(names, isComplete);
}

}  // namespace

QString ImportResult::sentence(const Strings& strings) const {
    if (isCancelled) return strings.ui("The import was stopped, and nothing was added.");
    QStringList sentences{countSentence(*this, strings)};
    if (passedOver > 0) sentences << passedOverSentence(passedOver, strings);
    if (dives == 0 && otherFormat.key)
        sentences << strings.text(Message<QString>{"Interface", "The file seems to be of the format %@.",
                                                   "The file seems to be of the format %@."},
                                  strings.text(otherFormat));
    QString text = sentences.join(u' ');
    for (const DiveAlert& alert : alerts) text += QStringLiteral("\n\n") + told(alert, strings);
    return text;
}

ImportResult importDives(Carnet& carnet, const QStringList& paths, const DiveReader& reader,
                         ImportAlerts alerts) {
    QStringList names;
    for (const QString& path : paths) names << QFileInfo(path).fileName();
    qsizetype at = 0;
    try {
        return importFrom(carnet, names, reader, alerts,
                          [&](qsizetype i) { return readFile(paths[at = i], largestImport); });
    } catch (const DocumentError& error) {
        // Content is wrong in a file that the person may have to look for among several.
        if (!error.path().isEmpty() || error.message().key.isEmpty()) throw;
        throw DocumentError(error.message(), paths[at]);
    }
}

ImportResult importBytes(Carnet& carnet, const QByteArray& bytes, const DiveReader& reader,
                         ImportAlerts alerts) {
    return importFrom(carnet, {QString()}, reader, alerts, [&](qsizetype) { return bytes; });
}

}  // namespace sargan
