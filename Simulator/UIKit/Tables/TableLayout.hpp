// Where the parts of a table stand, one below the other. Plain numbers: points from the top of the content.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

namespace sim {

struct TableSection {
    double header = 0, footer = 0; // heights
    std::vector<double> rows;
};

struct Span {
    double top = 0, height = 0;
    double bottom() const { return top + height; }
    bool meets(double from, double to) const { return top < to && bottom() > from; }
};

struct TableRow {
    size_t section = 0, row = 0;
    auto operator<=>(const TableRow &) const = default;
};

class TableLayout {
public:
    TableLayout() = default;
    // `start` is where the first section begins, below what stands above all sections.
    TableLayout(std::vector<TableSection> sections, double start);

    size_t sections() const { return sections_.size(); }
    size_t rows(size_t section) const { return sections_[section].rows.size(); }
    bool has(TableRow row) const { return row.section < sections() && row.row < rows(row.section); }

    Span header(size_t section) const;
    Span footer(size_t section) const;
    Span row(TableRow row) const;
    Span section(size_t section) const;
    double bottom() const { return bottom_; }

    // The row at that height; nothing on a header or footer.
    std::optional<TableRow> rowAt(double y) const;
    // Rows of which any part lies between the two.
    std::vector<TableRow> rowsWithin(double from, double to) const;

private:
    std::vector<TableSection> sections_;
    std::vector<double> tops_;                 // of each section
    std::vector<std::vector<double>> rowTops_; // of each row
    double bottom_ = 0;
};

} // namespace sim
