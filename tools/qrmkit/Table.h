// Plain-text tables for qrmkit's human output: aligned columns that fit a
// given width, long cells cut with an ellipsis.
#ifndef QRMKIT_TOOL_TABLE_H
#define QRMKIT_TOOL_TABLE_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace qrmtool {

// The number of terminal columns a UTF-8 text takes, counted as one per
// code point.
std::size_t DisplayWidth(const std::string& text);

// The text cut to at most `width` columns. A cut text ends with "…" (or,
// with `keepEnd`, begins with it and keeps the end of the text, which suits
// paths).
std::string Fit(const std::string& text, std::size_t width, bool keepEnd = false);

// The text with every control character (tabs, line ends) turned into a
// space, so that a catalog text cannot break a table line.
std::string OneLine(const std::string& text);

// A line width that never cuts.
constexpr std::size_t kUnlimited = SIZE_MAX;

// How human output is laid out for where it goes.
struct Style {
    // Lines are cut to this many columns.
    std::size_t width = kUnlimited;
    // Whether statuses are coloured (with terminal escape sequences).
    bool color = false;
};

// The style for output written to `fd`. On a terminal the width is $COLUMNS
// when it is a positive number, else the terminal's own width, else 80;
// anywhere else lines are never cut. `color` is "always", "never" or "auto":
// colour on a terminal, unless $NO_COLOR is set and not empty or $TERM is
// "dumb".
Style StyleFor(int fd, const std::string& color);

// The colour of a cell, as the parameters of a terminal escape sequence
// ("32" for green), or nullptr for none.
using Paint = const char* (*)(const std::string& cell);

// Colours of statuses, shared by every table that shows them: newer green,
// older yellow, unknown magenta, failed red; the rest uncoloured.
const char* StatusPaint(const std::string& status);

struct Column {
    std::string header;
    // Columns that may be made narrower than their widest cell when the
    // table is too wide; never below `minWidth` (nor below the header).
    bool shrinkable = false;
    std::size_t minWidth = 0;
    // Cut cells from the front instead of the back.
    bool keepEnd = false;
    // The colour of each cell, when the style has colour.
    Paint paint = nullptr;
};

class Table {
public:
    explicit Table(std::vector<Column> columns, std::size_t indent = 0);

    // One row of cells, one per column (missing cells are empty).
    void AddRow(std::vector<std::string> cells);
    // A line outside the columns (a group heading, a note), written with its
    // own indentation and cut to the table's width.
    void AddLine(std::string text, std::size_t indent = 0, bool keepEnd = false);
    // A group heading line, added only when it differs from the one before
    // (rows of one device under one heading).
    void AddGroup(const std::string& heading);

    // The header and every line, each ending with "\n", none wider than
    // the style's width as long as the columns' minimum widths allow it.
    std::string Render(const Style& style) const;

private:
    struct Entry {
        bool isLine = false;
        std::vector<std::string> cells;
        std::size_t indent = 0;
        bool keepEnd = false;
    };

    std::vector<Column> mColumns;
    std::size_t mIndent;
    std::vector<Entry> mEntries;
    bool mHasGroup = false;
    std::string mGroup;
};

}  // namespace qrmtool

#endif
