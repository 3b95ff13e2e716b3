#include "sample/terrain/ContourDrawing.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>
#include <optional>
#include <utility>

#include "sample/terrain/Decimal.h"

namespace {

/// Labels that are wanted, found a place or not: each tries up to 17, so that no terrain, however
/// bent its lines, takes more than 1,700,000.
constexpr double MostLabels = 100'000;
/// Places on either side of the middle of a stretch.
constexpr int Steps = 8;
constexpr int MostDecimals = 6;
constexpr double FigureWidth = 0.8; ///< Of its height.
/// How straight a line under a label must be: the distance of its ends, as a part of its length.
constexpr double Straight = 0.97;

double Distance(const MapPoint& from, const MapPoint& to) {
    return std::hypot(to.x - from.x, to.y - from.y);
}

/// The way along a contour.
class Path {
public:
    explicit Path(const Contour& contour) : m_Points{contour.points.front()}, m_Distances{0} {
        for (const MapPoint& point : contour.points)
            Continue(point);
        if (contour.closed)
            Continue(contour.points.front());
    }

    double Length() const { return m_Distances.back(); }

    /// The point at a distance from the beginning, from 0 to the length.
    MapPoint At(double distance) const {
        const auto after =
            std::upper_bound(m_Distances.begin() + 1, m_Distances.end() - 1, distance);
        const size_t index = after - m_Distances.begin();
        const double part =
            (distance - m_Distances[index - 1]) / (m_Distances[index] - m_Distances[index - 1]);
        return {std::lerp(m_Points[index - 1].x, m_Points[index].x, part),
                std::lerp(m_Points[index - 1].y, m_Points[index].y, part)};
    }

private:
    void Continue(const MapPoint& point) {
        const double distance = m_Distances.back() + Distance(m_Points.back(), point);
        // A step too short to change the sum is left out: a piece without a length has no
        // direction.
        if (distance > m_Distances.back()) {
            m_Points.push_back(point);
            m_Distances.push_back(distance);
        }
    }

    std::vector<MapPoint> m_Points;
    std::vector<double> m_Distances;
};

/// The places that are taken by labels, in squares as large as what has to be free round each.
class TakenPlaces {
public:
    explicit TakenPlaces(double size) : m_Size(size) {}

    /// Whether no other label is near.
    bool IsFree(const MapPoint& place) const {
        const auto [column, row] = Square(place);
        for (const double offset : {-1.0, 0.0, 1.0}) {
            const auto from = m_Places.lower_bound({column + offset, row - 1});
            const auto to = m_Places.upper_bound({column + offset, row + 1});
            for (auto one = from; one != to; ++one) {
                if (Distance(one->second, place) < m_Size)
                    return false;
            }
        }
        return true;
    }

    void Take(const MapPoint& place) { m_Places.emplace(Square(place), place); }

private:
    std::pair<double, double> Square(const MapPoint& place) const {
        return {std::floor(place.x / m_Size), std::floor(place.y / m_Size)};
    }

    double m_Size;
    std::multimap<std::pair<double, double>, MapPoint> m_Places;
};

/// The angle of a direction, turned so that a text along it is not upside down.
double ReadableAngle(const MapPoint& from, const MapPoint& to) {
    const double angle = std::atan2(to.y - from.y, to.x - from.x) * 180 / std::numbers::pi;
    if (angle > 90)
        return angle - 180;
    return angle <= -90 ? angle + 180 : angle;
}

/// A place for a label of this width with its middle at a distance along the path; none when the
/// line is too bent there, or another label too near.
std::optional<ContourLabel> PlaceAt(const Path& path, double distance, double width,
                                    const TakenPlaces& taken) {
    const MapPoint from = path.At(distance - width / 2);
    const MapPoint to = path.At(distance + width / 2);
    const MapPoint middle = path.At(distance);
    if (Distance(from, to) < Straight * width || !taken.IsFree(middle))
        return {};
    return ContourLabel{middle, ReadableAngle(from, to), 0, {}};
}

/// The best place in a stretch of the path: the nearest to its middle.
std::optional<ContourLabel> PlaceIn(const Path& path, double from, double to, double width,
                                    const TakenPlaces& taken) {
    const double middle = (from + to) / 2;
    const double room = (to - from - width) / 2;
    auto label = PlaceAt(path, middle, width, taken);
    for (int step = 1; step <= Steps && !label; ++step) {
        const double offset = room * step / Steps;
        label = PlaceAt(path, middle + offset, width, taken);
        if (!label)
            label = PlaceAt(path, middle - offset, width, taken);
    }
    return label;
}

/// An elevation as a label has it.
std::string LabelText(double elevation, int leastDecimals) {
    std::string text = Decimal(elevation, MostDecimals);
    const size_t point = text.find('.');
    text.resize(std::max(text.find_last_not_of('0'), point + leastDecimals) + 1);
    if (text.ends_with('.'))
        text.pop_back();
    return text;
}

} // namespace

ContourDrawing::ContourDrawing(const ElevationGrid& grid)
    : southWest(grid.At(0, grid.Rows() - 1)), northEast(grid.At(grid.Columns() - 1, 0)),
      decimals(std::clamp(static_cast<int>(4 - std::floor(std::log10(grid.CellSize()))), 0, 12)) {}

const CString& ContourDrawing::Layer(const Contour& contour) const {
    if (contour.depression)
        return contour.level.master ? layers.masterDepressions : layers.depressions;
    return contour.level.master ? layers.masters : layers.contours;
}

CString LabelContours(const ContourLabelStyle& style, ContourDrawing& drawing) {
    const double height = drawing.Ground(style.height);
    const double spacing = drawing.Ground(style.spacing);
    if (!(height > 0) || !(spacing > 0))
        return L"the height and the spacing of labels have to be above 0";

    const auto textOf = [&](const Contour& contour) {
        return LabelText(contour.level.elevation, std::clamp(style.decimals, 0, MostDecimals));
    };
    const auto widthOf = [&](const std::string& text) {
        return FigureWidth * height * static_cast<double>(text.size());
    };
    double free = 4 * height;
    for (const Contour& contour : drawing.contours)
        free = std::max(free, widthOf(textOf(contour)) + height);

    std::vector<ContourLabel> labels;
    double wanted = 0;
    TakenPlaces taken(free);
    for (const Contour& contour : drawing.contours) {
        if (style.mastersOnly && !contour.level.master)
            continue;
        const std::string text = textOf(contour);
        const double width = widthOf(text);
        const Path path(contour);
        if (path.Length() < 2 * width)
            continue;
        const double count =
            std::max(1.0, std::floor(path.Length() / std::max(spacing, 2 * width)));
        wanted += count;
        if (wanted > MostLabels)
            return L"there would be more than 100000 labels: choose a larger spacing or height";
        const double stretch = path.Length() / count;
        for (double index = 0; index < count; ++index) {
            auto label = PlaceIn(path, index * stretch, (index + 1) * stretch, width, taken);
            if (!label)
                continue;
            label->elevation = contour.level.elevation;
            label->text = text;
            taken.Take(label->middle);
            labels.push_back(std::move(*label));
        }
    }
    drawing.labels = std::move(labels);
    drawing.labelHeight = height;
    return {};
}
