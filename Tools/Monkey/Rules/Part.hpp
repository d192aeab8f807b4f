// A view as somebody measures it who has the design at hand. Each call adds a sentence where the view
// differs.
#pragma once

#include "Rules.hpp"

#include <string>

namespace sim {

class Part {
public:
    // `what` names it in the sentences.
    Part(const SeenView &view, std::string what, Findings &findings);

    // Its frame, to half a point; a size that is no number counts as right.
    const Part &at(double x, double y, double w, double h) const;
    const Part &round(double radius) const;
    const Part &bordered(double width) const;
    const Part &on(const std::string &background) const;
    const Part &in(const std::string &ink) const;
    const Part &sized(double font) const;
    const Part &says(const std::string &text) const;
    const Part &seenAt(double alpha) const;

    const SeenView &view() const { return view_; }

private:
    void number(const char *name, double is, double wanted, double tolerance) const;
    void text(const char *name, const std::string &is, const std::string &wanted) const;

    const SeenView &view_;
    std::string what_;
    Findings &findings_;
};

// The two colours of a scheme: texts and borders, and what they stand on.
struct Colours {
    std::string ink, paper;
    bool light = false;
};
Colours coloursOf(const Value &settings);

constexpr const char *kNone = ""; // no background

} // namespace sim
