#pragma once

#include "platform/document/DocumentController.h"

namespace sargan {

class DiveReader;
class LoadingWindow;
class PreferencesWindow;
class ReminderWindow;

/// The document controller of the desktop: new documents of each kind, what opens at launch, the loading
/// panel and the reminder note.
class MyDocumentController : public DocumentController {
    Q_OBJECT

public:
    MyDocumentController(const DocumentKinds& kinds, Desk& desk);
    ~MyDocumentController() override;

    /// One of the ten new-document actions, by its name ("newBudgetDocumentMenuAction"); null for another.
    Document* newDocumentMenuAction(const QString& action);
    /// Opens a file; the loading panel is shown while that takes long. Untouched new documents give way.
    Document* openFile(const QString& path);
    /// The dives of files of other formats, in a new untitled logbook; untouched new documents give way. The
    /// person hears of each format how it went. Null when there was no dive.
    Document* openDives(const QHash<const DiveReader*, QStringList>& files);
    /// At launch and when no document is open: the reminder note if wanted, then the most recent document,
    /// or a new logbook where no list of recent documents was ever stored. Always answers true: handled.
    bool applicationOpenUntitledFile();

    void showLoadingWindow();
    void disposeLoadingWindow();
    bool isLoadingWindowShown() const;

    /// Made when first asked for, kept from then on.
    ReminderWindow& penseBeteWindow();
    /// The preferences, in front; made when first asked for.
    PreferencesWindow& showPreferencePanel();
    ReminderWindow* penseBeteWindowIfMade() const { return _penseBeteWindow.get(); }

Q_SIGNALS:
    void penseBeteClosed();

private:
    std::vector<Document*> untouchedDocuments() const;
    void closeLater(const std::vector<Document*>& documents);

    std::unique_ptr<LoadingWindow> _loadingWindow;
    std::unique_ptr<ReminderWindow> _penseBeteWindow;
    std::unique_ptr<PreferencesWindow> _preferences;
};

}  // namespace sargan
