#pragma once

#include "platform/ui/ControlBinder.h"

class QMimeData;
class QToolButton;

namespace sargan {

/// A picture, as large as there is room: a click chooses another file, a file or a picture can be dropped on
/// it or pasted into it, Delete takes it away. A PDF of several pages is asked for the page. Bytes that are
/// no picture Qt can show are kept all the same.
class ImageBinder : public ControlBinder {
public:
    ImageBinder(Form& form, int control, const Desk& desk, const FormChoosers& choosers, QWidget* parent);
    QWidget* widget() const override;
    bool grows() const override { return true; }
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void show(const ControlState& state) override;

private:
    void makeMenu();
    void showPicture();
    void choose();
    void paste();
    void remove() { put(QByteArray()); }
    bool takeFrom(const QMimeData& offered);
    bool takeFile(const QByteArray& file);
    void askForPage(const QByteArray& pdf);
    void put(const QByteArray& bytes);
    bool keyPressed(QKeyEvent* event);
    QString words() const;

    const Desk& _desk;
    const FormChoosers& _choosers;
    QToolButton* _well;
    QByteArray _shown;
};

}  // namespace sargan
