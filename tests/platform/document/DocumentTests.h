#pragma once

#include "platform/document/RecordDocument.h"
#include "support/Sample.h"

// Each runs one test class of this folder and returns the number of its failures.
int runBadInputTest(int argc, char** argv);
int runColumnOrderTest(int argc, char** argv);
int runDocumentControllerTest(int argc, char** argv);
int runDocumentFileTest(int argc, char** argv);
int runLockedDocumentTest(int argc, char** argv);
int runHistoryTest(int argc, char** argv);
int runRecordDocumentTest(int argc, char** argv);

namespace documenttest {

/// A document of samples, with nothing of its own but what every document of records has.
class SampleDocument : public sargan::RecordDocument<sargan::Sample> {
public:
    SampleDocument(const sargan::DocumentKind& kind, sargan::Desk& desk)
        : RecordDocument(kind, desk, sargan::sampleClass()) {}

    /// What is done to the bytes of a save before they go to the file.
    std::function<QByteArray(QByteArray)> damage;

    QByteArray dataRepresentationOfType(const QString& type) override {
        if (type == QLatin1String("Words")) return "words";
        if (type != kind().currentTypeName(desk())) return {};
        return damage ? damage(archive()) : archive();
    }
    bool loadDataRepresentation(const QByteArray& bytes, const QString& type) override {
        unarchive(bytes);
        return type == kind().currentTypeName(desk());
    }

    /// One more record, which holds this number.
    void append(int whole) {
        sargan::Sample sample;
        sample.setWhole(whole);
        auto list = records();
        list.append(std::make_shared<const sargan::Sample>(sample));
        perform(QStringLiteral("Append %1").arg(whole), std::move(list), {});
    }
    QList<int> numbers() const {
        QList<int> all;
        for (const auto& sample : records()) all << sample->whole();
        return all;
    }
};

inline const sargan::DocumentKind& sampleKind() {
    static const sargan::DocumentKind kind{
        "Samples",
        false,
        "SampleDocument",
        "Sample",
        "sample",
        "newSampleDocumentMenuAction",
        [](const sargan::DocumentKind& own, sargan::Desk& desk) -> std::unique_ptr<sargan::Document> {
            return std::make_unique<SampleDocument>(own, desk);
        }};
    return kind;
}

}  // namespace documenttest
