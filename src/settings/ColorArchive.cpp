#include "settings/ColorArchive.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "platform/archive/ArchiveReader.h"
#include "platform/archive/ArchiveWriter.h"

namespace sargan {

namespace {

enum ColorSpace : qint64 { CalibratedRgb = 1, DeviceRgb, CalibratedWhite, DeviceWhite, DeviceCmyk, Named };

/// A named colour holds another one, which may be named as well; real ones stop after two.
constexpr int mostNestedColors = 8;

/// The reals of a group of this type; empty when the group is another one.
std::vector<float> realsOf(const ArchivedGroup& group, const char* type) {
    std::vector<float> reals;
    if (group.type != type) return reals;
    for (const ArchivedValue& value : group.values) {
        const double* real = std::get_if<double>(&value.value);
        const qint64* whole = std::get_if<qint64>(&value.value);
        const double number = real ? *real : whole ? double(*whole) : std::nan("");
        if (std::isnan(number)) return {};
        reals.push_back(float(std::clamp(number, 0.0, 1.0)));
    }
    return reals.size() == std::size_t(qstrlen(type)) ? reals : std::vector<float>();
}

std::optional<ColorComponents> rgbColor(const ArchivedGroup& group) {
    const std::vector<float> value = realsOf(group, "ffff");
    if (value.empty()) return std::nullopt;
    return ColorComponents{value[0], value[1], value[2], value[3]};
}

std::optional<ColorComponents> whiteColor(const ArchivedGroup& group) {
    const std::vector<float> value = realsOf(group, "ff");
    if (value.empty()) return std::nullopt;
    return ColorComponents{value[0], value[0], value[0], value[1]};
}

std::optional<ColorComponents> cmykColor(const ArchivedGroup& group) {
    const std::vector<float> value = realsOf(group, "fffff");
    if (value.empty()) return std::nullopt;
    const float light = 1 - value[3];
    return ColorComponents{(1 - value[0]) * light, (1 - value[1]) * light, (1 - value[2]) * light, value[4]};
}

std::optional<ColorComponents> colorIn(const ArchivedObject& object, int depth);

std::optional<ColorComponents> namedColor(const ArchivedGroup& group, int depth) {
    if (group.type != "@@@" || group.values.size() != 3 || depth == mostNestedColors) return std::nullopt;
    const auto* color = std::get_if<std::shared_ptr<const ArchivedObject>>(&group.values[2].value);
    return color ? colorIn(**color, depth + 1) : std::nullopt;
}

std::optional<ColorComponents> colorIn(const ArchivedObject& object, int depth) {
    if (!object.isKindOf("NSColor")) return std::nullopt;
    const QList<ArchivedGroup> groups = object.groups();
    if (groups.size() < 2 || groups[0].type != "c" || groups[0].values.size() != 1) return std::nullopt;
    const qint64* space = std::get_if<qint64>(&groups[0].values[0].value);
    switch (space ? *space : 0) {
        case CalibratedRgb:
        case DeviceRgb:
            return rgbColor(groups[1]);
        case CalibratedWhite:
        case DeviceWhite:
            return whiteColor(groups[1]);
        case DeviceCmyk:
            return cmykColor(groups[1]);
        case Named:
            return namedColor(groups[1], depth);
        default:
            return std::nullopt;
    }
}

}  // namespace

QByteArray archivedColor(const ColorComponents& components) {
    ArchiveWriter writer;
    writer.beginObject(archiveclass::color);
    writer.writeByteGroup(CalibratedRgb);
    writer.writeFloatsGroup({components[0], components[1], components[2], components[3]});
    writer.endObject();
    return writer.take();
}

std::optional<ColorComponents> unarchivedColor(const QByteArray& bytes) {
    try {
        return colorIn(Archive::read(bytes)->root(), 0);
    } catch (const ArchiveError&) {
        return std::nullopt;
    }
}

}  // namespace sargan
