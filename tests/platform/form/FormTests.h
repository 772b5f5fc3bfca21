#pragma once

#include "platform/form/Form.h"

// Each runs one test class of this folder and returns the number of its failures.
int runFormFillTest(int argc, char** argv);
int runFormTest(int argc, char** argv);

/// One control of every kind.
namespace formtest {

inline constexpr sargan::MenuItem menu[] = {{0, {"Carnet", "Easy"}}, {3, {"Carnet", "Hard"}}};
inline constexpr sargan::ControlSpec controls[] = {
    {.name = "textField", .kind = sargan::ControlKind::Text},
    {.name = "numberField", .kind = sargan::ControlKind::Number},
    {.name = "areaField", .kind = sargan::ControlKind::Area},
    {.name = "comboField", .kind = sargan::ControlKind::Combo},
    {.name = "dateField", .kind = sargan::ControlKind::Date},
    {.name = "timeField", .kind = sargan::ControlKind::Time},
    {.name = "menuPopUp", .kind = sargan::ControlKind::PopUp, .menu = menu},
    {.name = "onSwitch", .kind = sargan::ControlKind::Switch},
    {.name = "levelSlider", .kind = sargan::ControlKind::Slider, .maximum = 5},
    {.name = "captionField", .kind = sargan::ControlKind::Caption},
    {.name = "photoImage", .kind = sargan::ControlKind::Image},
    {.name = "tintWell", .kind = sargan::ControlKind::Color},
};

}  // namespace formtest
