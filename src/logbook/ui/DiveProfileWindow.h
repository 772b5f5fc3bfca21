#pragma once

#include <QWidget>

#include "logbook/DiveProfileForm.h"
#include "platform/ui/ControlBinder.h"

class QGridLayout;
class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace sargan {

class DepthPreview;

/// The profile editing window: the seven lists of the dive side by side as texts, one value a line, with the
/// depth curve above them, and the boxes that say which lists to replace.
class DiveProfileWindow : public QWidget {
    Q_OBJECT

public:
    explicit DiveProfileWindow(Carnet& carnet);
    ~DiveProfileWindow() override;

    /// In front, with the texts of the dive in the form.
    void profilInfo();
    DiveProfileForm& profile() { return _profile; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QWidget* makeLists();
    void addList(QGridLayout* grid, int column, const ProfileList& list);
    QWidget* bind(ControlName control);
    QWidget* makeFoot();
    void refresh(int control);
    void settle();
    void followDive();
    void showDive();
    void showState();
    void showPreview();
    void showSample();
    void scrollTogether(int line);
    void importProfil();

    Carnet& _carnet;
    DiveProfileForm _profile;
    FormChoosers _choosers;
    std::vector<std::unique_ptr<ControlBinder>> _binders;  ///< by control
    QList<QPlainTextEdit*> _texts;
    DepthPreview* _preview;
    QLabel* _sample;
    QPushButton* _import = nullptr;
    bool _isScrolling = false;
};

}  // namespace sargan
