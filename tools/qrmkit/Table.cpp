#include "Table.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace qrmtool {

namespace {

const char kEllipsis[] = "\xE2\x80\xA6";  // U+2026

bool IsContinuationByte(char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; }

// The byte offset where code point number `index` begins (the size when the
// text has fewer code points).
std::size_t OffsetOfCodePoint(const std::string& text, std::size_t index)
{
    std::size_t seen = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (!IsContinuationByte(text[i])) {
            if (seen == index) {
                return i;
            }
            ++seen;
        }
    }
    return text.size();
}

std::string TrimRight(std::string text)
{
    while (!text.empty() && text.back() == ' ') {
        text.pop_back();
    }
    return text;
}

const std::size_t kGap = 2;

}  // namespace

std::size_t DisplayWidth(const std::string& text)
{
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return !IsContinuationByte(c); }));
}

std::string Fit(const std::string& text, std::size_t width, bool keepEnd)
{
    std::size_t length = DisplayWidth(text);
    if (length <= width) {
        return text;
    }
    if (width == 0) {
        return std::string();
    }
    if (keepEnd) {
        return kEllipsis + text.substr(OffsetOfCodePoint(text, length - (width - 1)));
    }
    return text.substr(0, OffsetOfCodePoint(text, width - 1)) + kEllipsis;
}

std::string OneLine(const std::string& text)
{
    std::string out = text;
    for (char& c : out) {
        unsigned char u = static_cast<unsigned char>(c);
        if (u < 0x20U || u == 0x7FU) {
            c = ' ';
        }
    }
    return out;
}

Table::Table(std::vector<Column> columns, std::size_t indent) : mColumns(std::move(columns)), mIndent(indent) {}

void Table::AddRow(std::vector<std::string> cells)
{
    Entry entry;
    cells.resize(mColumns.size());
    for (std::string& cell : cells) {
        cell = OneLine(cell);
    }
    entry.cells = std::move(cells);
    mEntries.push_back(std::move(entry));
}

void Table::AddLine(std::string text, std::size_t indent, bool keepEnd)
{
    Entry entry;
    entry.isLine = true;
    entry.cells.push_back(OneLine(text));
    entry.indent = indent;
    entry.keepEnd = keepEnd;
    mEntries.push_back(std::move(entry));
}

void Table::AddGroup(const std::string& heading)
{
    if (!mHasGroup || heading != mGroup) {
        AddLine(heading);
        mHasGroup = true;
        mGroup = heading;
    }
}

std::string Table::Render(const Style& style) const
{
    const std::size_t maxWidth = style.width;
    const std::size_t count = mColumns.size();
    if (count == 0) {
        return std::string();
    }
    // The first header also covers the rows' indentation.
    std::vector<std::size_t> widths(count, 0);
    std::vector<std::size_t> minimums(count, 0);
    for (std::size_t c = 0; c < count; ++c) {
        std::size_t header = DisplayWidth(mColumns[c].header);
        if (c == 0) {
            header = header > mIndent ? header - mIndent : 0;
        }
        widths[c] = header;
        minimums[c] = std::max(header, mColumns[c].minWidth);
    }
    for (const Entry& entry : mEntries) {
        if (entry.isLine) {
            continue;
        }
        for (std::size_t c = 0; c < count; ++c) {
            widths[c] = std::max(widths[c], DisplayWidth(entry.cells[c]));
        }
    }
    auto total = [&]() {
        std::size_t sum = mIndent + kGap * (count - 1);
        for (std::size_t width : widths) {
            sum += width;
        }
        return sum;
    };
    // Narrow the widest shrinkable column, one column at a time, until the
    // table fits or nothing can shrink any more.
    while (total() > maxWidth) {
        std::size_t widest = count;
        for (std::size_t c = 0; c < count; ++c) {
            if (mColumns[c].shrinkable && widths[c] > minimums[c] && (widest == count || widths[c] > widths[widest])) {
                widest = c;
            }
        }
        if (widest == count) {
            break;
        }
        --widths[widest];
    }

    auto renderCells = [&](const std::vector<std::string>& cells, bool header) {
        std::string line = header ? std::string() : std::string(mIndent, ' ');
        for (std::size_t c = 0; c < count; ++c) {
            std::size_t width = widths[c] + (header && c == 0 ? mIndent : 0);
            std::string cell = Fit(cells[c], width, mColumns[c].keepEnd);
            std::string padding =
                c + 1 < count ? std::string(width - std::min(width, DisplayWidth(cell)) + kGap, ' ') : std::string();
            const char* paint =
                style.color && !header && mColumns[c].paint != nullptr ? mColumns[c].paint(cells[c]) : nullptr;
            if (paint != nullptr && !cell.empty()) {
                cell = std::string("\x1B[") + paint + "m" + cell + "\x1B[0m";
            }
            line += cell + padding;
        }
        return TrimRight(line) + "\n";
    };

    std::vector<std::string> headers;
    for (const Column& column : mColumns) {
        headers.push_back(column.header);
    }
    std::string out = renderCells(headers, true);
    for (const Entry& entry : mEntries) {
        if (entry.isLine) {
            std::size_t room = maxWidth > entry.indent ? maxWidth - entry.indent : 0;
            out += TrimRight(std::string(entry.indent, ' ') + Fit(entry.cells[0], room, entry.keepEnd)) + "\n";
        } else {
            out += renderCells(entry.cells, false);
        }
    }
    return out;
}

Style StyleFor(int fd, const std::string& color)
{
    Style style;
    const bool terminal = isatty(fd) != 0;
    if (terminal) {
        style.width = 80;
        const char* columns = std::getenv("COLUMNS");
        char* end = nullptr;
        const long fromEnvironment = columns != nullptr ? std::strtol(columns, &end, 10) : 0;
        winsize size{};
        if (columns != nullptr && *columns != '\0' && *end == '\0' && fromEnvironment > 0) {
            style.width = static_cast<std::size_t>(fromEnvironment);
        } else if (ioctl(fd, TIOCGWINSZ, &size) == 0 && size.ws_col > 0) {
            style.width = size.ws_col;
        }
    }
    if (color == "always") {
        style.color = true;
    } else if (color == "auto") {
        const char* noColor = std::getenv("NO_COLOR");
        const char* term = std::getenv("TERM");
        style.color =
            terminal && (noColor == nullptr || *noColor == '\0') && (term == nullptr || std::string(term) != "dumb");
    }
    return style;
}

const char* StatusPaint(const std::string& status)
{
    if (status == "newer") {
        return "32";
    }
    if (status == "older") {
        return "33";
    }
    if (status == "unknown") {
        return "35";
    }
    if (status == "failed") {
        return "31";
    }
    return nullptr;
}

}  // namespace qrmtool
