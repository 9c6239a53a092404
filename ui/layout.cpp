#include "ui/layout.h"

#include <algorithm>
#include <map>

namespace zentar {
namespace {

// A parent's client area: as designed, in units, and as it is now, in pixels.
struct Area {
    Size designed;
    Size actual;
};

// One axis of a control.
struct Stretch {
    int start = 0;
    int length = 0;
};

// `grown` is by how many pixels the parent is larger than designed.
Stretch Place(int start, int length, bool nearEdge, bool farEdge, int grown, int dpi) {
    const int first = ScaleToDpi(start, dpi);
    const int last = ScaleToDpi(start + length, dpi);
    if (!farEdge) {
        return {first, last - first};
    }
    if (!nearEdge) {
        return {first + grown, last - first};
    }
    return {first, std::max(0, last - first + grown)};
}

Rect PlaceControl(const ControlRow& row, const Area& parent, int dpi) {
    const Stretch across = Place(row.rect.left, row.rect.width, (row.anchors & AnchorLeft) != 0,
                                 (row.anchors & AnchorRight) != 0,
                                 parent.actual.width - ScaleToDpi(parent.designed.width, dpi), dpi);
    const Stretch down = Place(row.rect.top, row.rect.height, (row.anchors & AnchorTop) != 0,
                               (row.anchors & AnchorBottom) != 0,
                               parent.actual.height - ScaleToDpi(parent.designed.height, dpi), dpi);
    return {across.start, down.start, across.length, down.length};
}

Size PageSize(Size tab, int header, int inset) {
    return {std::max(0, tab.width - 2 * inset), std::max(0, tab.height - header - inset)};
}

}  // namespace

int ScaleToDpi(int units, int dpi) { return (units * dpi + 48) / 96; }

std::vector<Rect> LayoutControls(const FormTable& table, std::span<const ControlRow> rows,
                                 Size client, int dpi) {
    const int header = ScaleToDpi(kTabHeader, dpi);
    const int inset = ScaleToDpi(kTabInset, dpi);
    std::map<int, Area> areas{{0, {table.clientSize, client}}};
    std::vector<Rect> places;
    places.reserve(rows.size());
    for (const ControlRow& row : rows) {
        const Area& parent = areas[row.parent];
        Rect place;
        Size designed{row.rect.width, row.rect.height};
        if (row.kind == ControlKind::TabPage) {
            const Size page = PageSize(parent.actual, header, inset);
            place = {inset, header, page.width, page.height};
            designed = PageSize(parent.designed, kTabHeader, kTabInset);
        } else if (row.kind != ControlKind::Timer) {
            place = PlaceControl(row, parent, dpi);
        }
        areas[row.id] = {designed, {place.width, place.height}};
        places.push_back(place);
    }
    return places;
}

}  // namespace zentar
