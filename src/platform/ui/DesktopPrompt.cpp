#include "platform/ui/DesktopPrompt.h"

#include <QApplication>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>

namespace sargan {

namespace {

constexpr int progressSteps = 1000;

class ProgressPanel : public Progress {
public:
    ProgressPanel(const QString& what, const QString& cancel)
        : _dialog(what, cancel, 0, progressSteps, QApplication::activeWindow()) {
        // While it works nobody may change or close what it works on, in whichever window.
        _dialog.setWindowModality(Qt::ApplicationModal);
        _dialog.setMinimumDuration(300);
    }

    bool advance(double share) override {
        _dialog.setValue(int(std::clamp(share, 0.0, 1.0) * (progressSteps - 1)));
        return !_dialog.wasCanceled();
    }

private:
    QProgressDialog _dialog;
};

}  // namespace

void DesktopPrompt::beep() {
    QApplication::beep();
}

void DesktopPrompt::alert(const QString& text) {
    show(QMessageBox::Warning, text);
}

void DesktopPrompt::inform(const QString& text) {
    show(QMessageBox::Information, text);
}

void DesktopPrompt::show(int icon, const QString& text) {
    QMessageBox box(QMessageBox::Icon(icon), QApplication::applicationDisplayName(), text, QMessageBox::NoButton,
                    QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.addButton(_strings.text({"Main", "OK", "OK"}), QMessageBox::AcceptRole);
    box.exec();
}

int DesktopPrompt::ask(const QString& text, const QStringList& buttons) {
    QMessageBox box(QMessageBox::Question, QApplication::applicationDisplayName(), text,
                    QMessageBox::NoButton, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    QList<QPushButton*> made;
    for (qsizetype i = 0; i < buttons.size(); ++i) {
        const bool isLast = i + 1 == buttons.size();
        made << box.addButton(buttons[i], i == 0   ? QMessageBox::AcceptRole
                                          : isLast ? QMessageBox::RejectRole
                                                   : QMessageBox::DestructiveRole);
    }
    if (made.isEmpty()) return -1;
    box.setDefaultButton(made.first());
    box.setEscapeButton(made.last());
    box.exec();
    const qsizetype chosen = made.indexOf(static_cast<QPushButton*>(box.clickedButton()));
    return int(chosen < 0 ? made.size() - 1 : chosen);
}

std::unique_ptr<Progress> DesktopPrompt::startProgress(const QString& what) {
    return std::make_unique<ProgressPanel>(what, _strings.text({"Main", "Cancel", "Cancel"}));
}

}  // namespace sargan
