#include "PathParts.hpp"

#include <algorithm>
#include <cmath>

namespace render {

namespace {

using Verb = PathElement::Verb;
using Line = std::vector<Point>;

double distance(Point from, Point to) { return std::hypot(to.x - from.x, to.y - from.y); }

Point between(Point from, Point to, double part) {
    return {from.x + (to.x - from.x) * part, from.y + (to.y - from.y) * part};
}

void addCurve(Line &line, const Point control[3]) {
    constexpr int kFewest = 8, kMost = 128;
    Point from = line.back();
    double reach =
        distance(from, control[0]) + distance(control[0], control[1]) + distance(control[1], control[2]);
    int pieces = static_cast<int>(std::clamp<double>(reach, kFewest, kMost));
    for (int i = 1; i <= pieces; i++) {
        double t = static_cast<double>(i) / pieces;
        Point a = between(from, control[0], t), b = between(control[0], control[1], t),
              c = between(control[1], control[2], t);
        line.push_back(between(between(a, b, t), between(b, c, t), t));
    }
}

// One line for each subpath.
std::vector<Line> flatten(const Path &path) {
    std::vector<Line> lines;
    for (const PathElement &element : path.elements) {
        if (element.verb == Verb::move) {
            lines.push_back({element.points[0]});
            continue;
        }
        if (lines.empty()) lines.push_back({Point{}});
        Line &line = lines.back();
        Point first = line.front();
        switch (element.verb) {
        case Verb::line:
            line.push_back(element.points[0]);
            break;
        case Verb::curve:
            addCurve(line, element.points);
            break;
        case Verb::close:
            line.push_back(first);
            lines.push_back({first}); // what follows without a move starts here
            break;
        case Verb::move:
            break;
        }
    }
    return lines;
}

double lengthOf(const std::vector<Line> &lines) {
    double length = 0;
    for (const Line &line : lines)
        for (size_t i = 1; i < line.size(); i++) length += distance(line[i - 1], line[i]);
    return length;
}

} // namespace

Path partOf(const Path &path, double start, double end) {
    std::vector<Line> lines = flatten(path);
    double length = lengthOf(lines), from = start * length, to = end * length, passed = 0;
    Path part;
    for (const Line &line : lines) {
        bool drawing = false;
        for (size_t i = 1; i < line.size(); i++) {
            double step = distance(line[i - 1], line[i]), next = passed + step;
            double low = std::max(from, passed), high = std::min(to, next);
            if (high > low) {
                auto at = [&](double place) {
                    return between(line[i - 1], line[i], (place - passed) / step);
                };
                if (!drawing) part.elements.push_back({Verb::move, {at(low)}});
                part.elements.push_back({Verb::line, {at(high)}});
                drawing = true;
            }
            passed = next;
        }
    }
    return part;
}

Rect boundsOf(const Path &path) {
    double left = INFINITY, top = INFINITY, right = -INFINITY, bottom = -INFINITY;
    for (const PathElement &element : path.elements) {
        int count = element.verb == Verb::close ? 0 : element.verb == Verb::curve ? 3 : 1;
        for (int i = 0; i < count; i++) {
            left = std::min(left, element.points[i].x), right = std::max(right, element.points[i].x);
            top = std::min(top, element.points[i].y), bottom = std::max(bottom, element.points[i].y);
        }
    }
    if (left > right) return {};
    return {left, top, right - left, bottom - top};
}

} // namespace render
