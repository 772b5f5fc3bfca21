#pragma once

#include <QMainWindow>

#include "platform/desk/Desk.h"

namespace sargan {

/// A window that belongs to no document and is made once: closing hides it, Escape and Ctrl+W close it, its
/// place is kept in the settings, and a change of language builds its content anew.
class AuxiliaryWindow : public QMainWindow {
    Q_OBJECT

public:
    /// `frameName`: under which its place is remembered.
    AuxiliaryWindow(Desk& desk, const QString& frameName);

    void bringToFront();

protected:
    /// Title and content in the current language; also called when there is a content already.
    virtual void build() = 0;
    /// Between the request to come to the front and being shown, when the window was hidden.
    virtual void prepare() {}
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    Desk& desk() const { return _desk; }
    /// Whether a size was remembered from an earlier time.
    bool restorePlace();

private:
    QString placeKey() const { return QStringLiteral("window ") + _frameName; }

    Desk& _desk;
    QString _frameName;
};

}  // namespace sargan
