#pragma once

#include <QDialog>

#include "stats/Synthesis.h"

namespace sargan {

/// The small window that asks which dives the synthesis is to cover.
class SynthesisChooser : public QDialog {
    Q_OBJECT

public:
    SynthesisChooser(Synthesis& synthesis, QWidget* parent);

private:
    void validate();

    Synthesis& _synthesis;
};

}  // namespace sargan
