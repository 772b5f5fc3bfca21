#pragma once

#include "logbook/Plongee.h"
#include "platform/form/Form.h"

namespace sargan {

/// One control of the dive form and the dive's field that it maps, if any.
struct DiveControl {
    ControlSpec spec;
    const Field<Plongee>* field = nullptr;  ///< null: shown or computed only
};

/// Every control of the dive form. The mapping to the dive's fields is one to one.
std::span<const DiveControl> diveControls();

/// The controls that the code speaks of by name.
namespace divecontrol {
inline constexpr ControlName plongeeNo{"plongeeNoField"};
inline constexpr ControlName date{"dateField"};
inline constexpr ControlName heure{"heureField"};
inline constexpr ControlName surface{"surfaceField"};
inline constexpr ControlName profondeur{"profondeurField"};
inline constexpr ControlName temps{"tempsField"};
inline constexpr ControlName o2Mix{"o2MixField"};
inline constexpr ControlName n2Mix{"n2MixField"};
inline constexpr ControlName heMix{"heMixField"};
inline constexpr ControlName o2Mix2{"o2Mix_2Field"};
inline constexpr ControlName n2Mix2{"n2Mix_2Field"};
inline constexpr ControlName heMix2{"heMix_2Field"};
inline constexpr ControlName depart{"departField"};
inline constexpr ControlName fin{"finField"};
inline constexpr ControlName depart2{"depart_2Field"};
inline constexpr ControlName fin2{"fin_2Field"};
inline constexpr ControlName volumeBloc{"volumeBlocField"};
inline constexpr ControlName volumeBloc2{"volumeBloc_2Field"};
inline constexpr ControlName deltaPressure{"deltaPressureField"};
inline constexpr ControlName deltaPressure2{"deltaPressure_2Field"};
inline constexpr ControlName cns{"cnsField"};
inline constexpr ControlName difficulte{"difficulteSlider"};
inline constexpr ControlName difficulteCaption{"difficulteField"};
inline constexpr ControlName samplingRate{"samplingRatePopUp"};
}  // namespace divecontrol

}  // namespace sargan
