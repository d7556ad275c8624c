#include "properties/model/picker_layouts.h"

namespace qz {

namespace {

constexpr int boxes = 64;
constexpr int smallestBox = 6;  // pixels at every resolution

/// The measures that the layouts share.
struct Measures {
    explicit Measures(const PickerMetrics& metrics) noexcept
        : dpi(metrics.dpi),
          gap(Scaled(4)),
          line(metrics.lineHeight),
          label(line + Scaled(2)),
          field(line + Scaled(8)),
          button(line + Scaled(10)) {}

    int Scaled(int pixelsAt96) const noexcept { return pixelsAt96 * dpi / 96; }

    int dpi, gap, line, label, field, button;
};

/// Gives out parts of a rectangle from its edges inward, each with a gap to the rest. What does not fit is
/// empty, and so is all that would come behind it.
class Room {
  public:
    Room(const Rect& rest, int gap) noexcept : rest_(rest), gap_(gap) {}

    Rect Top(int height) noexcept {
        if (rest_.Empty() || height <= 0 || height > rest_.Height()) return None();
        const Rect part{rest_.left, rest_.top, rest_.right, rest_.top + height};
        rest_.top = part.bottom + gap_;
        return part;
    }
    /// A label stands close to what it labels.
    Rect Label(int height) noexcept {
        const Rect part = Top(height);
        if (!part.Empty()) rest_.top = part.bottom;
        return part;
    }
    Rect Left(int width) noexcept {
        if (rest_.Empty() || width <= 0 || width > rest_.Width()) return None();
        const Rect part{rest_.left, rest_.top, rest_.left + width, rest_.bottom};
        rest_.left = part.right + gap_;
        return part;
    }
    Rect Right(int width) noexcept {
        if (rest_.Empty() || width <= 0 || width > rest_.Width()) return None();
        const Rect part{rest_.right - width, rest_.top, rest_.right, rest_.bottom};
        rest_.right = part.left - gap_;
        return part;
    }
    Rect Rest() const noexcept { return rest_.Empty() ? Rect{} : rest_; }

  private:
    Rect None() noexcept {
        rest_ = {};
        return {};
    }

    Rect rest_;
    int gap_;
};

Room WholeRoom(const PickerMetrics& metrics, const Measures& measures) noexcept {
    return {{0, 0, metrics.client.width, metrics.client.height}, measures.gap};
}

Size BoxSize(const Rect& palette, int columns) noexcept {
    return {palette.Width() / columns, palette.Height() / (boxes / columns)};
}

void ArrangePalette(ColourPlaces& places, const Rect& room, const Measures& measures) noexcept {
    const auto smallerSide = [&](int columns) {
        const Size box = BoxSize(room, columns);
        return std::min(box.width, box.height);
    };
    places.columns = smallerSide(16) >= smallerSide(8) ? 16 : 8;
    if (smallerSide(places.columns) < smallestBox) return;
    const int largest = measures.Scaled(24);
    const Size box = BoxSize(room, places.columns);
    const Size palette{std::min(box.width, largest) * places.columns,
                       std::min(box.height, largest) * (boxes / places.columns)};
    places.palette = Rect::At(room.Origin(), palette);
}

}  // namespace

Rect BoxPlace(const ColourPlaces& places, int box) noexcept {
    if (places.palette.Empty()) return {};
    const Size size = BoxSize(places.palette, places.columns);
    const int column = box % places.columns, row = box / places.columns;
    return Rect::At({places.palette.left + column * size.width, places.palette.top + row * size.height},
                    size);
}

ColourPlaces ArrangeColourEditor(const PickerMetrics& metrics) noexcept {
    const Measures measures(metrics);
    const int narrowest = measures.Scaled(68);  // eight digits
    const int none = measures.Scaled(88), label = measures.Scaled(70);
    ColourPlaces places;
    Room whole = WholeRoom(metrics, measures);
    Room row(whole.Top(measures.field), measures.gap);
    const auto fits = [&](int width) { return row.Rest().Width() >= width + measures.gap + narrowest; };
    if (fits(none)) places.none = row.Right(none);
    if (fits(measures.field)) places.preview = row.Right(measures.field);
    if (fits(label)) places.label = row.Left(label);
    places.text = row.Rest();
    ArrangePalette(places, whole.Rest(), measures);
    return places;
}

FontPlaces ArrangeFontEditor(const PickerMetrics& metrics) noexcept {
    const Measures measures(metrics);
    const int markColumns = metrics.client.width >= measures.Scaled(200) ? 2 : 1;
    const int markRows = 4 / markColumns;
    const int mark = measures.line + measures.Scaled(4);
    const int all = measures.label + measures.field + markRows * (measures.gap + mark);
    const int size = measures.Scaled(48);
    FontPlaces places;
    Room room = WholeRoom(metrics, measures);
    if (metrics.client.height >= all) {
        Room labels(room.Label(measures.label), measures.gap);
        places.sizeLabel = labels.Right(size);
        places.faceLabel = labels.Rest();
    }
    Room fields(room.Top(measures.field), measures.gap);
    places.size = fields.Right(size);
    places.face = fields.Rest();
    for (int i = 0; i < 4; i += markColumns) {
        Room row(room.Top(mark), measures.gap);
        if (markColumns == 2) places.marks[i + 1] = row.Right((metrics.client.width - measures.gap) / 2);
        places.marks[i] = row.Rest();
    }
    Room last(room.Top(measures.button), measures.gap);
    places.choose = last.Left(std::min(metrics.client.width, measures.Scaled(96)));
    return places;
}

FormatPlaces ArrangeFormatEditor(const PickerMetrics& metrics) noexcept {
    const Measures measures(metrics);
    const bool beside = metrics.client.width >= measures.Scaled(200);
    const int leastList = 3 * measures.line;
    const int text = measures.label + measures.field + measures.gap + measures.label + measures.line;
    const int list = measures.gap + measures.label + leastList;
    const bool labelled = metrics.client.height >= (beside ? text : text + list);
    FormatPlaces places;
    Room room = WholeRoom(metrics, measures);
    Room listRoom = room;
    if (beside) {
        listRoom = Room(room.Right((metrics.client.width - measures.gap) / 2), measures.gap);
    }
    if (labelled) places.textLabel = room.Label(measures.label);
    places.text = room.Top(measures.field);
    if (labelled) places.previewLabel = room.Label(measures.label);
    places.preview = room.Top(measures.line);
    if (!beside) listRoom = room;
    if (labelled) places.listLabel = listRoom.Label(measures.label);
    places.list = listRoom.Rest();
    if (places.list.Height() < measures.line + measures.gap) places.list = {};
    return places;
}

ActionsPlaces ArrangeActionsEditor(const PickerMetrics& metrics) noexcept {
    const Measures measures(metrics);
    const int count = 5, gap = measures.Scaled(2), narrowestText = measures.Scaled(60);
    ActionsPlaces places;
    Room room = WholeRoom(metrics, measures);
    if (metrics.client.height >= measures.field + measures.gap + measures.line) {
        const int width = std::min(measures.Scaled(24), (metrics.client.width - (count - 1) * gap) / count);
        Room row(room.Top(measures.field), gap);
        for (Rect& button : places.buttons) button = row.Left(width);
        if (row.Rest().Width() >= narrowestText) places.text = row.Rest();
    }
    places.list = room.Rest();
    return places;
}

ObjectsPlaces ArrangeObjectsEditor(const PickerMetrics& metrics) noexcept {
    const Measures measures(metrics);
    const int mark = measures.line + measures.Scaled(4);
    ObjectsPlaces places;
    Room room = WholeRoom(metrics, measures);
    if (metrics.client.height >= mark + measures.gap + measures.line) places.fieldsOnly = room.Top(mark);
    places.list = room.Rest();
    return places;
}

}  // namespace qz
