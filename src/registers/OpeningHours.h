#pragma once

#include "registers/RegisterDescription.h"
#include "registers/RegisterLayout.h"

/// The weekly opening hours of firms and clubs: each day opens and closes in the morning, then in the
/// afternoon.
namespace sargan::openinghours {

struct Day {
    const char* controls[4];
    Message<> name;
};

inline constexpr Day week[] = {
    {{"horaireLundi_1Field", "horaireLundi_2Field", "horaireLundi_3Field", "horaireLundi_4Field"},
     registerwords::ui("Monday")},
    {{"horaireMardi_1Field", "horaireMardi_2Field", "horaireMardi_3Field", "horaireMardi_4Field"},
     registerwords::ui("Tuesday")},
    {{"horaireMercredi_1Field", "horaireMercredi_2Field", "horaireMercredi_3Field", "horaireMercredi_4Field"},
     registerwords::ui("Wednesday")},
    {{"horaireJeudi_1Field", "horaireJeudi_2Field", "horaireJeudi_3Field", "horaireJeudi_4Field"},
     registerwords::ui("Thursday")},
    {{"horaireVendredi_1Field", "horaireVendredi_2Field", "horaireVendredi_3Field", "horaireVendredi_4Field"},
     registerwords::ui("Friday")},
    {{"horaireSamedi_1Field", "horaireSamedi_2Field", "horaireSamedi_3Field", "horaireSamedi_4Field"},
     registerwords::ui("Saturday")},
    {{"horaireDimanche_1Field", "horaireDimanche_2Field", "horaireDimanche_3Field", "horaireDimanche_4Field"},
     registerwords::ui("Sunday")},
};

/// The 28 times in the order of the week; F is the fields' struct of a record class that has them.
template <class F>
inline constexpr auto fields = std::to_array({
    &F::horaireLundi_1,    &F::horaireLundi_2,    &F::horaireLundi_3,    &F::horaireLundi_4,
    &F::horaireMardi_1,    &F::horaireMardi_2,    &F::horaireMardi_3,    &F::horaireMardi_4,
    &F::horaireMercredi_1, &F::horaireMercredi_2, &F::horaireMercredi_3, &F::horaireMercredi_4,
    &F::horaireJeudi_1,    &F::horaireJeudi_2,    &F::horaireJeudi_3,    &F::horaireJeudi_4,
    &F::horaireVendredi_1, &F::horaireVendredi_2, &F::horaireVendredi_3, &F::horaireVendredi_4,
    &F::horaireSamedi_1,   &F::horaireSamedi_2,   &F::horaireSamedi_3,   &F::horaireSamedi_4,
    &F::horaireDimanche_1, &F::horaireDimanche_2, &F::horaireDimanche_3, &F::horaireDimanche_4,
});

template <class F, class R>
void addControls(std::vector<RegisterControl<R>>& controls) {
    std::size_t place = 0;
    for (const Day& day : week)
        for (const char* name : day.controls)
            controls.push_back({{.name = name, .kind = ControlKind::Text}, fields<F>[place++]});
}

inline LayoutSection section() {
    using namespace registerlayout;
    LayoutSection hours{ui("Opening hours"), {}};
    for (const Day& day : week)
        hours.rows.append(
            row({sized(day.controls[0], day.name, 7), sized(day.controls[1], ui("to"), 7),
                 sized(day.controls[2], ui("and from"), 7), sized(day.controls[3], ui("to"), 7)}));
    return hours;
}

/// The four times of day `day`, from 0 for Monday: "9:00 - 12:00 / 14:00 - 19:00".
template <class F, class R>
QString times(const R& record, std::size_t day) {
    const auto time = [&](std::size_t n) -> const QString& {
        return record.*std::get<Text R::*>(fields<F>[4 * day + n] -> member);
    };
    return time(0) + QStringLiteral(" - ") + time(1) + QStringLiteral(" / ") + time(2) +
           QStringLiteral(" - ") + time(3);
}

}  // namespace sargan::openinghours
