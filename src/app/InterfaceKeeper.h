#pragma once

#include <QObject>
#include <QTranslator>
#include <memory>

#include "platform/desk/Desk.h"

namespace sargan {

class DocumentWindows;

/// Language and appearance of all windows, as the person chose them. A change takes effect at once: texts are
/// looked up anew, document windows are made again in place of the old ones, and every other window hears of
/// it by the toolkit's own event for a change of language.
class InterfaceKeeper : public QObject {
    Q_OBJECT

public:
    InterfaceKeeper(Desk& desk, DocumentWindows& windows);
    ~InterfaceKeeper() override;

    /// The toolkit's own texts (file dialogs, standard buttons) in the language of the program.
    void loadToolkitTexts();

Q_SIGNALS:
    void languageChanged();

private:
    void applyLanguage();
    void applyAppearance();
    bool changeToolkitTexts();

    Desk& _desk;
    DocumentWindows& _windows;
    std::unique_ptr<QTranslator> _toolkitTexts;
    QString _systemStyle;
    std::vector<NotificationCenter::Observation> _observations;
};

}  // namespace sargan
