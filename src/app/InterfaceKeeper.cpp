#include "app/InterfaceKeeper.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QPointer>
#include <QStyle>

#include "app/DocumentWindows.h"
#include "settings/InterfaceChoice.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

QPalette lightPalette() {
    QPalette palette(QColor(239, 239, 239));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(245, 246, 248));
    palette.setColor(QPalette::Highlight, QColor(38, 110, 170));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0, 90, 160));
    palette.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
    return palette;
}

QPalette darkPalette() {
    QPalette palette(QColor(62, 64, 69));
    palette.setColor(QPalette::Base, QColor(27, 28, 31));
    palette.setColor(QPalette::AlternateBase, QColor(35, 37, 41));
    palette.setColor(QPalette::Highlight, QColor(47, 125, 188));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(110, 180, 240));
    palette.setColor(QPalette::ToolTipBase, QColor(64, 66, 70));
    palette.setColor(QPalette::ToolTipText, QColor(235, 235, 235));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, QColor(235, 235, 235));
        palette.setColor(QPalette::Disabled, role, QColor(130, 132, 136));
    }
    palette.setColor(QPalette::PlaceholderText, QColor(235, 235, 235, 128));
    return palette;
}

}  // namespace

InterfaceKeeper::InterfaceKeeper(Desk& desk, DocumentWindows& windows)
    : _desk(desk), _windows(windows), _systemStyle(QApplication::style()->name()) {
    // Windows cannot be made anew from within the event of one of them.
    const auto later = [this](const char* name, void (InterfaceKeeper::*apply)()) {
        _observations.push_back(_desk.notifications.observe(QLatin1String(name), [this, apply](const void*) {
            QMetaObject::invokeMethod(
                this, [this, apply] { (this->*apply)(); }, Qt::QueuedConnection);
        }));
    };
    later(interfacechoice::languageChanged, &InterfaceKeeper::applyLanguage);
    later(interfacechoice::appearanceChanged, &InterfaceKeeper::applyAppearance);
    if (interfacechoice::appearance(desk.defaults) != interfacechoice::SystemAppearance) applyAppearance();
}

InterfaceKeeper::~InterfaceKeeper() {
    if (_toolkitTexts) QCoreApplication::removeTranslator(_toolkitTexts.get());
}

void InterfaceKeeper::applyLanguage() {
    const Strings::Language wanted = preferredLanguage(_desk.defaults);
    if (wanted == _desk.strings.language()) return;
    const QPointer<QWidget> front = QApplication::activeWindow();
    _desk.strings.setLanguage(wanted);
    _windows.remakeAll();
    if (!changeToolkitTexts()) {
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(QCoreApplication::instance(), &change);
    }
    // What forms have written into their captions.
    _desk.notifications.post(u"updateEditDive"_s, this);
    Q_EMIT languageChanged();
    if (!front) return;
    front->raise();
    front->activateWindow();
}

void InterfaceKeeper::loadToolkitTexts() {
    if (!_toolkitTexts) changeToolkitTexts();
}

bool InterfaceKeeper::changeToolkitTexts() {
    bool isTold = false;
    if (_toolkitTexts) isTold = QCoreApplication::removeTranslator(_toolkitTexts.get());
    _toolkitTexts.reset();
    if (_desk.strings.language() != Strings::Language::French) return isTold;
    auto texts = std::make_unique<QTranslator>();
    if (!texts->load(u"qtbase_fr"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) return isTold;
    _toolkitTexts = std::move(texts);
    return QCoreApplication::installTranslator(_toolkitTexts.get()) || isTold;
}

void InterfaceKeeper::applyAppearance() {
    switch (interfacechoice::appearance(_desk.defaults)) {
        case interfacechoice::SystemAppearance:
            QApplication::setStyle(_systemStyle);
            QApplication::setPalette(QPalette());
            break;
        case interfacechoice::Light:
            QApplication::setStyle(u"fusion"_s);
            QApplication::setPalette(lightPalette());
            break;
        case interfacechoice::Dark:
            QApplication::setStyle(u"fusion"_s);
            QApplication::setPalette(darkPalette());
            break;
    }
}

}  // namespace sargan
