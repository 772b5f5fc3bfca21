#pragma once

#include <QJsonArray>

#include "platform/form/WindowLayout.h"
#include "platform/ui/FormView.h"
#include "support/FormWalk.h"
#include "support/TestDesk.h"

namespace sargan {

inline constexpr MenuItem sampleMenu[] = {
    {0, {"Test", "none", "none"}}, {5, {"Test", "five", "five"}}, {7, {"Test", "seven", "seven"}}};
inline constexpr const char* sampleChoices[] = {"12", "15", "18"};

/// One control of every kind.
inline constexpr ControlSpec sampleSpecs[] = {
    {.name = "nameField", .kind = ControlKind::Text},
    {.name = "sizeField", .kind = ControlKind::Number},
    {.name = "notesField", .kind = ControlKind::Area},
    {.name = "placeField", .kind = ControlKind::Combo, .pickList = "places"},
    {.name = "volumeField", .kind = ControlKind::Combo, .choices = sampleChoices},
    {.name = "dayField", .kind = ControlKind::Date},
    {.name = "timeField", .kind = ControlKind::Time},
    {.name = "kindPopUp", .kind = ControlKind::PopUp, .menu = sampleMenu},
    {.name = "nightSwitch", .kind = ControlKind::Switch},
    {.name = "levelSlider", .kind = ControlKind::Slider, .minimum = 0, .maximum = 5},
    {.name = "levelField", .kind = ControlKind::Caption},
    {.name = "photoView", .kind = ControlKind::Image},
    {.name = "inkWell", .kind = ControlKind::Color},
    {.name = "kindMatrix", .kind = ControlKind::PopUp, .menu = sampleMenu, .spread = true},
};

/// The sample form in a window on one pane, with a second pane for one more field.
struct SampleWindow {
    TestDesk desk;
    Form form{sampleSpecs};
    WindowLayout layout;
    std::unique_ptr<FormView> view;

    SampleWindow() {
        LayoutSection section;
        for (const ControlSpec& spec : sampleSpecs)
            section.rows.append({{{.control = spec.name,
                                   .label = {"Test", spec.name, spec.name},
                                   .unit = {"Test", "unit", "unit"}}}});
        layout = {"sample",
                  {"Test", "Sample", "Sample"},
                  {{"firstPane", {"Test", "First", "First"}, nullptr, {section}}}};
        view = std::make_unique<FormView>(form, layout, desk.desk);
        view->choosers.color = [](QWidget*, const QColor&) { return QColor(1, 2, 3); };
        view->choosers.image = [](QWidget*) { return QByteArray("\x89PNG bytes"); };
        view->resize(700, 900);
        view->show();
        view->activateWindow();
    }

    /// The pick list of the form's combo box becomes these entries.
    void keepPlaces(const QStringList& places) {
        const QString key = QStringLiteral("places");
        desk.defaults.store(key, QJsonArray::fromStringList(places));
        desk.pickLists.load(key);
    }
    int at(const char* name) const { return form[ControlName{name}]; }
    template <class W = QWidget>
    W* widget(const char* name) const {
        return view->findChild<W*>(QLatin1String(name));
    }
};

}  // namespace sargan
