#pragma once

#include "platform/text/Message.h"

/// The results that are worded in the person's language, with the arguments that each format takes in order.
namespace sargan::calculatortext {

inline constexpr Message<double> bestMix{"Nitrox", "Best Mix"};  ///< oxygen percent
inline constexpr Message<double, double, double> oxygenWindow{
    "Nitrox", "Oxygen window"};  ///< deepest, shallowest, usable depth
inline constexpr Message<double, double> oxygenToTransfer{
    "Nitrox", "Oxygen to transfer"};  ///< bar, percent of what is added

inline constexpr Message<double, double> eadEnd{"Trimix", "EAD END"};  ///< two depths
inline constexpr Message<double> profMin{"Trimix", "Prof min"};        ///< depth
inline constexpr Message<double, double> bestTx{"Trimix", "Best Tx"};  ///< oxygen and helium percent
inline constexpr Message<> noValidDatas{"Main", "No valid datas"};

inline constexpr Message<WholeNumber, WholeNumber> sodaTime{"Rebreather", "Soda time"};  ///< hours, minutes
inline constexpr Message<double> loopFlush{"Rebreather", "FracO2 loop flush"};           ///< oxygen percent
inline constexpr Message<double, double> bestCcrTrimix{"Rebreather",
                                                       "Best CCR Trimix"};     ///< oxygen and helium percent
inline constexpr Message<double> breathedFrac{"Rebreather", "Breathed frac"};  ///< oxygen percent
inline constexpr Message<double, double> tableBreathedFrac{"Rebreather",
                                                           "Table breathed frac"};  ///< l/min, percent
inline constexpr Message<double> idealFlow{"Rebreather", "Ideal flow"};             ///< l/min
inline constexpr Message<double, double> tableFlow{"Rebreather",
                                                   "Table flow"};  ///< l/min used, l/min supplied

}  // namespace sargan::calculatortext
