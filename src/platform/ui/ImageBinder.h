#pragma once

#include "platform/ui/ControlBinder.h"

class QToolButton;

namespace sargan {

/// A picture: a click chooses another file, Delete takes it away. Bytes that are no picture Qt can show are
/// kept all the same.
class ImageBinder : public ControlBinder {
public:
    ImageBinder(Form& form, int control, const Strings& strings, const FormChoosers& choosers,
                QWidget* parent);
    QWidget* widget() const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void show(const ControlState& state) override;

private:
    void choose();

    const Strings& _strings;
    const FormChoosers& _choosers;
    QToolButton* _well;
    QByteArray _shown;
};

}  // namespace sargan
