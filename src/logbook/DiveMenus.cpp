#include "logbook/DiveMenus.h"

namespace sargan::divemenus {

namespace {

constexpr MenuItem tideItems[] = {
    {0, {"Carnet", "Tide unknown"}},
    {1, {"Carnet", "High tide"}},
    {2, {"Carnet", "Low tide"}},
};

constexpr MenuItem positionSystemItems[] = {
    {0, {"Carnet", "Position other"}},
    {1, {"Carnet", "WGS84", "WGS84"}},
    {2, {"Carnet", "ED50", "ED50"}},
};

constexpr MenuItem weatherItems[] = {
    {0, {"Carnet", "Clear"}},
    {1, {"Carnet", "Cloudy"}},
    {2, {"Carnet", "Foggy"}},
    {3, {"Carnet", "Rainy"}},
    {4, {"Carnet", "Hail"}},
    {5, {"Carnet", "Snowy"}},
    {6, {"Carnet", "Thundery"}},
    {7, {"Carnet", "N/A", "N/A"}},
};

constexpr MenuItem windSectorItems[] = {
    {0, {"Carnet", "N/A", "N/A"}},
    {1, {"Carnet", "North"}},
    {2, {"Carnet", "North-east"}},
    {3, {"Carnet", "East"}},
    {4, {"Carnet", "South-east"}},
    {5, {"Carnet", "South"}},
    {6, {"Carnet", "South-west"}},
    {7, {"Carnet", "West"}},
    {8, {"Carnet", "North-west"}},
};

constexpr MenuItem windForceItems[] = {
    {0, {"Carnet", "N/A", "N/A"}},
    {1, {"Carnet", "Force 0"}},
    {2, {"Carnet", "Force 1"}},
    {3, {"Carnet", "Force 2"}},
    {4, {"Carnet", "Force 3"}},
    {5, {"Carnet", "Force 4"}},
    {6, {"Carnet", "Force 5"}},
    {7, {"Carnet", "Force 6"}},
    {8, {"Carnet", "Force 7"}},
    {9, {"Carnet", "Force 8"}},
    {10, {"Carnet", "Force 9"}},
    {11, {"Carnet", "Force 10"}},
    {12, {"Carnet", "Force 11"}},
    {13, {"Carnet", "Force 12"}},
};

constexpr MenuItem currentItems[] = {
    {0, {"Carnet", "None"}},
    {1, {"Carnet", "Weak"}},
    {2, {"Carnet", "Moderate"}},
    {3, {"Carnet", "Strong"}},
    {4, {"Carnet", "Very strong"}},
    {5, {"Carnet", "Violent"}},
    {6, {"Carnet", "N/A", "N/A"}},
};

constexpr MenuItem visibilityItems[] = {
    {0, {"Carnet", "Excellent"}},
    {1, {"Carnet", "Very good"}},
    {2, {"Carnet", "Good"}},
    {3, {"Carnet", "Medium"}},
    {4, {"Carnet", "Bad"}},
    {5, {"Carnet", "Very bad"}},
    {6, {"Carnet", "Execrable"}},
    {7, {"Carnet", "N/A", "N/A"}},
    {8, {"Carnet", "Exceptional"}},
};

constexpr MenuItem diveTypeItems[] = {
    {0, {"Carnet", "Wreck"}},
    {1, {"Carnet", "Recreational"}},
    {2, {"Carnet", "NA"}},
    {3, {"Carnet", "Photo dive"}},
    {4, {"Carnet", "Tek"}},
    {5, {"Carnet", "Cave"}},
    {6, {"Carnet", "Movies"}},
    {7, {"Carnet", "Work"}},
    {8, {"Carnet", "Other"}},
    {9, {"Carnet", "Drift"}},
    {10, {"Carnet", "Under ice"}},
    {11, {"Carnet", "Training"}},
    {12, {"Carnet", "Biology"}},
    {13, {"Carnet", "Quarry"}},
    {14, {"Carnet", "Recuperation"}},
};

constexpr MenuItem unforgettableItems[] = {
    {0, {"Carnet", "Ordinary dive"}},
    {1, {"Carnet", "Unforgettable dive"}},
};

constexpr MenuItem decoItems[] = {
    {0, {"Carnet", "TableView air tables"}},
    {1, {"Carnet", "TableView nitrox tables"}},
    {2, {"Carnet", "TableView computer"}},
    {3, {"Carnet", "TableView air Nx"}},
    {4, {"Carnet", "TableView air O2"}},
    {5, {"Carnet", "TableView air Nx O2"}},
};

constexpr MenuItem apparatusItems[] = {
    {0, {"Carnet", "Open circuit"}},
    {1, {"Carnet", "SCR", "SCR"}},
    {2, {"Carnet", "mCCR", "mCCR"}},
    {3, {"Carnet", "eCCR", "eCCR"}},
    {4, {"Carnet", "hCCR", "hCCR"}},
};

constexpr MenuItem gasItems[] = {
    {0, {"Carnet", "Air"}},
    {1, {"Carnet", "Nitrox"}},
    {2, {"Carnet", "Trimix"}},
    {3, {"Carnet", "Heliox"}},
    {4, {"Carnet", "Helitrox"}},
    {5, {"Carnet", "Heliair"}},
};

constexpr MenuItem setPointItems[] = {
    {0, {"Carnet", "0,7 bar", "0,7 bar"}},
    {1, {"Carnet", "0,8 bar", "0,8 bar"}},
    {2, {"Carnet", "0,9 bar", "0,9 bar"}},
    {3, {"Carnet", "1,0 bar", "1,0 bar"}},
    {4, {"Carnet", "1,1 bar", "1,1 bar"}},
    {5, {"Carnet", "1,2 bar", "1,2 bar"}},
    {6, {"Carnet", "1,3 bar", "1,3 bar"}},
    {7, {"Carnet", "1,4 bar", "1,4 bar"}},
    {8, {"Carnet", "1,5 bar", "1,5 bar"}},
    {9, {"Carnet", "1,6 bar", "1,6 bar"}},
};

constexpr MenuItem tankMaterialItems[] = {
    {0, {"Carnet", "Steel"}},
    {1, {"Carnet", "Aluminum"}},
    {2, {"Carnet", "Carbon"}},
};

constexpr MenuItem suitItems[] = {
    {0, {"Carnet", "Wet suit"}},
    {1, {"Carnet", "Dry suit"}},
    {2, {"Carnet", "Shorty"}},
    {3, {"Carnet", "No suit"}},
    {4, {"Carnet", "Semi-dry suit"}},
    {5, {"Carnet", "T-shirt"}},
    {6, {"Carnet", "Tropical suit"}},
};

constexpr MenuItem configurationItems[] = {
    {0, {"Carnet", "No Tek"}},
    {1, {"Carnet", "Tek configuration"}},
};

constexpr MenuItem samplingRateItems[] = {
    {0, {"Carnet", "Every 10 s"}},
    {1, {"Carnet", "Every 20 s"}},
    {2, {"Carnet", "Every 30 s"}},
    {3, {"Carnet", "Every 60 s"}},
    {4, {"Carnet", "Every 120 s"}},
    {5, {"Carnet", "Every 4 s"}},
    {6, {"Carnet", "Every 5 s, code 6"}},
    {7, {"Carnet", "Every 5 s"}},
};

}  // namespace

const std::span<const MenuItem> tide = tideItems;
const std::span<const MenuItem> positionSystem = positionSystemItems;
const std::span<const MenuItem> weather = weatherItems;
const std::span<const MenuItem> windSector = windSectorItems;
const std::span<const MenuItem> windForce = windForceItems;
const std::span<const MenuItem> current = currentItems;
const std::span<const MenuItem> visibility = visibilityItems;
const std::span<const MenuItem> diveType = diveTypeItems;
const std::span<const MenuItem> unforgettable = unforgettableItems;
const std::span<const MenuItem> deco = decoItems;
const std::span<const MenuItem> apparatus = apparatusItems;
const std::span<const MenuItem> gas = gasItems;
const std::span<const MenuItem> setPoint = setPointItems;
const std::span<const MenuItem> tankMaterial = tankMaterialItems;
const std::span<const MenuItem> suit = suitItems;
const std::span<const MenuItem> configuration = configurationItems;
const std::span<const MenuItem> samplingRate = samplingRateItems;

}  // namespace sargan::divemenus
