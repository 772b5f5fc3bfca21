#pragma once

#include <QWidget>

#include "platform/desk/Desk.h"

class QCheckBox;
class QPlainTextEdit;

namespace sargan {

/// The reminder note: a free text that the settings keep under "pense bete text", and whether it comes up
/// when the program starts ("pense bete").
class ReminderWindow : public QWidget {
    Q_OBJECT

public:
    explicit ReminderWindow(Desk& desk);

    void bringToFront();
    /// Writes text and check mark to the settings when they have changed.
    void store();

Q_SIGNALS:
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void retranslate();

    Desk& _desk;
    QPlainTextEdit* _text;
    QCheckBox* _atStart;
};

}  // namespace sargan
