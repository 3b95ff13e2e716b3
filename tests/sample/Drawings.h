#pragma once

#include "sample/terrain/ContourDrawing.h"

/// A drawing with a line, a master ring, a depression and a label, at coordinates as maps have
/// them.
inline ContourDrawing SmallDrawing() {
    ContourDrawing drawing;
    drawing.title = L"Hills";
    drawing.southWest = {437200, 4486300};
    drawing.northEast = {437300, 4486380};
    drawing.scale = 500;
    drawing.contours = {
        {{-2.5, false}, false, false, {{437200, 4486300}, {437250.125, 4486310.25}}},
        {{0, true}, true, false, {{437210, 4486310}, {437220, 4486310}, {437220, 4486320}}},
        {{12.3, false}, true, true, {{437230, 4486310}, {437240, 4486320}, {437240, 4486310}}}};
    drawing.labels = {{{437215, 4486310}, -30, 0, "0.0"}};
    drawing.labelHeight = 1.5;
    return drawing;
}
