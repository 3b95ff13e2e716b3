#pragma once

#include <afx.h>

#include "sample/terrain/GridSource.h"

/// What is taken of an elevation file: a rectangle in the file's unit, and of how many nodes one.
struct GridWindow {
    MapPoint low;
    MapPoint high;
    int ratio = 1; ///< Along either axis; below 0 it counts as its opposite.
};

/// The nodes of a file that lie at a regular distance along one axis.
struct TakenNodes {
    int first = 0;      ///< Counted from 0 in the west, or in the south.
    long long step = 1; ///< From one to the next.
    int count = 0;

    bool Has(int node) const {
        return node >= first && (node - first) % step == 0 && (node - first) / step < count;
    }
};

/// The nodes that a window takes along the two axes. Their number along an axis is that of whole
/// steps within the part of the window that lies in the file, a step being the distance between
/// neighbours times the ratio: a node at the very end of the last step is not taken. The first node
/// is the first one inside of the window; there is none where the window is outside of the file, or
/// smaller than a step, or where the ratio is 0.
TakenNodes TakenColumns(const GridFrame& frame, const GridWindow& window);
TakenNodes TakenRows(const GridFrame& frame, const GridWindow& window);

/// Writes the nodes of a window as an ESRI ASCII grid, while it reads the source, which is at its
/// first elevation: nodes stay where they are, elevations and the marker of missing ones as they
/// are.
///
/// @return empty when the file was written; else one line that names the file which is at fault and
///         says what is wrong: "tile.asc: the disk is full". What stood in `file` before is
///         untouched then. Nothing is written where the window takes no node, and of a source whose
///         nodes are not as far apart in x as in y, since cells of an ASCII grid are square.
CString WriteGridWindow(const CString& file, GridSource& source, const GridWindow& window);
