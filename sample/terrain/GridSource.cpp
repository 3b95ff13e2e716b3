#include "sample/terrain/GridSource.h"

#include <cmath>
#include <limits>

namespace {

/// Where so many cells end.
double End(double begin, int cells, double spacing) {
    double end = begin + cells * spacing;
    while ((end - begin) / spacing < cells)
        end = std::nextafter(end, std::numeric_limits<double>::infinity());
    return end;
}

} // namespace

double GridFrame::West() const {
    return origin.x - xSpacing / 2;
}

double GridFrame::South() const {
    return origin.y - ySpacing / 2;
}

double GridFrame::East() const {
    return End(West(), columns, xSpacing);
}

double GridFrame::North() const {
    return End(South(), rows, ySpacing);
}
