#include "TableLayout.hpp"

#include <utility>

namespace sim {

TableLayout::TableLayout(std::vector<TableSection> sections, double start)
    : sections_(std::move(sections)), bottom_(start) {
    for (const auto &section : sections_) {
        tops_.push_back(bottom_);
        bottom_ += section.header;
        rowTops_.emplace_back();
        for (double height : section.rows) {
            rowTops_.back().push_back(bottom_);
            bottom_ += height;
        }
        bottom_ += section.footer;
    }
}

Span TableLayout::section(size_t section) const {
    double end = section + 1 < sections() ? tops_[section + 1] : bottom_;
    return {tops_[section], end - tops_[section]};
}

Span TableLayout::header(size_t section) const { return {tops_[section], sections_[section].header}; }

Span TableLayout::footer(size_t section) const {
    double height = sections_[section].footer;
    return {this->section(section).bottom() - height, height};
}

Span TableLayout::row(TableRow row) const {
    return {rowTops_[row.section][row.row], sections_[row.section].rows[row.row]};
}

std::optional<TableRow> TableLayout::rowAt(double y) const {
    for (size_t section = 0; section < sections(); ++section)
        for (size_t i = 0; i < rows(section); ++i) {
            Span span = row({section, i});
            if (y >= span.top && y < span.bottom()) return TableRow{section, i};
        }
    return std::nullopt;
}

std::vector<TableRow> TableLayout::rowsWithin(double from, double to) const {
    std::vector<TableRow> result;
    for (size_t section = 0; section < sections(); ++section) {
        if (!this->section(section).meets(from, to)) continue;
        for (size_t i = 0; i < rows(section); ++i)
            if (row({section, i}).meets(from, to)) result.push_back({section, i});
    }
    return result;
}

} // namespace sim
