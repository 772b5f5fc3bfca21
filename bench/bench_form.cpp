// One dive through the edit form, as importers and the command line make it: blank, fill, build, append.
//   bench_form [DIVES]

#include <QCoreApplication>

#include "bench/Measure.h"
#include "bench/QuietDesk.h"
#include "logbook/Carnet.h"
#include "platform/desk/Desk.h"

using namespace sargan;
using namespace sargan::bench;

namespace {

const QList<std::pair<QString, QString>> typed{
    {QStringLiteral("dateField"), QStringLiteral("2016-06-07T14:30:00")},
    {QStringLiteral("bateauField"), QStringLiteral("Suroît")},
    {QStringLiteral("meteoPopUp"), QStringLiteral("7")},
    {QStringLiteral("courantPopUp"), QStringLiteral("6")},
    {QStringLiteral("visibilitePopUp"), QStringLiteral("8")},
    {QStringLiteral("typePlongeePopUp"), QStringLiteral("13")},
    {QStringLiteral("tempEauField"), QStringLiteral("14")},
    {QStringLiteral("profondeurField"), QStringLiteral("32.5")},
    {QStringLiteral("tempsField"), QStringLiteral("47")},
    {QStringLiteral("departField"), QStringLiteral("200")},
    {QStringLiteral("finField"), QStringLiteral("50")},
    {QStringLiteral("o2MixField"), QStringLiteral("32")},
    {QStringLiteral("notesField"), QStringLiteral("Two congers and a lobster under the rock.")},
};

void addDives(int dives) {
    QuietDesk desk;
    Carnet carnet(desk.kinds.standard(), desk.desk, desk.saveTypes);
    Form& form = carnet.form();
    for (int i = 0; i < dives; ++i)
        carnet.addDive([&] {
            for (const auto& [control, value] : typed) form.fill(form.find(control), value);
        });
    use(carnet);
}

void buildDives(int dives) {
    QuietDesk desk;
    DiveForm dive(desk.desk);
    for (int i = 0; i < dives; ++i) {
        dive.blankFields();
        for (const auto& [control, value] : typed) dive.form().fill(dive.form().find(control), value);
        use(std::make_shared<const Plongee>(dive.addDiveToList()));
    }
}

void copyDives(int dives, const Plongee& dive) {
    for (int i = 0; i < dives; ++i) use(std::make_shared<const Plongee>(dive));
}

void line(const char* what, double seconds, int dives, double floor) {
    std::printf("%-40s %8.2f us a dive", what, seconds / dives * 1e6);
    if (floor > 0) std::printf("   %7.1f x a copy", seconds / floor);
    std::printf("\n");
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const int dives = argc > 1 ? std::atoi(argv[1]) : 1000;
    QuietDesk desk;
    const Plongee blank = DiveForm(desk.desk).addDiveToList();
    const double copy = bestOf(5, [&] { copyDives(dives, blank); });
    const double build = bestOf(5, [&] { buildDives(dives); });
    const double add = bestOf(5, [&] { addDives(dives); });
    line("floor: copy a dive", copy, dives, 0);
    line("blank the form, fill it, build a dive", build, dives, copy);
    line("the same, and add it to a logbook", add, dives, copy);
    return 0;
}
