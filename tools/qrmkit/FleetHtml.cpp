// The HTML page of `qrmkit fleet --format html`: one self-contained file (no
// network, no external scripts or fonts) with the totals, two bar charts as
// inline SVG (computers by the highest criticality pending, pending packages
// by category), and a table of computers that a small script builds from the
// data embedded in the page, with filtering, sorting and paging.
#include "FleetReport.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

namespace qrmtool {

namespace {

std::string Escape(const std::string& text)
{
    std::string out;
    out.reserve(text.size());
    for (char c : text) {
        switch (c) {
        case '&':
            out += "&amp;";
            break;
        case '<':
            out += "&lt;";
            break;
        case '>':
            out += "&gt;";
            break;
        case '"':
            out += "&quot;";
            break;
        case '\'':
            out += "&#39;";
            break;
        default:
            out += c;
        }
    }
    return out;
}

// JSON that may stand inside a <script> element: every "<" (which only
// occurs inside strings) written as an escape, so no "</script>" or "<!--"
// can end or change the element.
std::string ScriptJson(const Json& data)
{
    std::string text = JsonText(data, -1);
    std::string out;
    out.reserve(text.size());
    for (char c : text) {
        if (c == '<') {
            out += "\\u003c";
        } else {
            out += c;
        }
    }
    return out;
}

struct Bar {
    std::string label;
    std::size_t count;
    std::string color;
};

// A horizontal bar chart, one bar per entry, with its label and count.
std::string BarChart(const std::string& id, const std::string& title, const std::vector<Bar>& bars)
{
    const int rowHeight = 26;
    const int labelWidth = 190;
    const int barWidth = 360;
    const int height = static_cast<int>(bars.size()) * rowHeight + 10;
    std::size_t most = 1;
    for (const Bar& bar : bars) {
        most = std::max(most, bar.count);
    }
    std::string svg = "<figure class=\"chart\"><figcaption>" + Escape(title) + "</figcaption>";
    svg += "<svg id=\"" + id + "\" role=\"img\" aria-label=\"" + Escape(title) + "\" width=\"" +
           std::to_string(labelWidth + barWidth + 70) + "\" height=\"" + std::to_string(height) + "\">";
    int y = 5;
    for (const Bar& bar : bars) {
        const int width = bar.count == 0 ? 0 : std::max(2, static_cast<int>(bar.count * barWidth / most));
        svg += "<g class=\"bar\" data-label=\"" + Escape(bar.label) + "\" data-count=\"" + std::to_string(bar.count) +
               "\">";
        svg += "<text x=\"" + std::to_string(labelWidth - 8) + "\" y=\"" + std::to_string(y + 17) +
               "\" text-anchor=\"end\">" + Escape(bar.label) + "</text>";
        svg += "<rect x=\"" + std::to_string(labelWidth) + "\" y=\"" + std::to_string(y + 3) + "\" width=\"" +
               std::to_string(width) + "\" height=\"" + std::to_string(rowHeight - 8) + "\" fill=\"" + bar.color +
               "\"><title>" + Escape(bar.label) + ": " + std::to_string(bar.count) + "</title></rect>";
        svg += "<text x=\"" + std::to_string(labelWidth + width + 6) + "\" y=\"" + std::to_string(y + 17) + "\">" +
               std::to_string(bar.count) + "</text></g>";
        y += rowHeight;
    }
    return svg + "</svg></figure>\n";
}

const char kStyle[] = R"(
body { font: 14px/1.4 system-ui, sans-serif; margin: 24px; color: #1d2433; background: #fff; }
h1 { font-size: 22px; margin: 0 0 4px; }
.sub { color: #5a6275; margin: 0 0 18px; }
.totals { display: flex; flex-wrap: wrap; gap: 10px; margin-bottom: 18px; }
.total { border: 1px solid #d6dae3; border-radius: 6px; padding: 8px 14px; min-width: 110px; }
.total b { display: block; font-size: 20px; }
.charts { display: flex; flex-wrap: wrap; gap: 24px; }
figure.chart { margin: 0; }
figcaption { font-weight: 600; margin-bottom: 4px; }
svg text { font: 12px system-ui, sans-serif; fill: #1d2433; }
.controls { margin: 18px 0 8px; display: flex; gap: 12px; align-items: center; flex-wrap: wrap; }
.controls input { width: 320px; padding: 4px 6px; }
table { border-collapse: collapse; width: 100%; }
th, td { border-bottom: 1px solid #e3e6ed; padding: 4px 8px; text-align: left; vertical-align: top; }
th { background: #f3f5f9; cursor: pointer; user-select: none; white-space: nowrap; }
th[data-order="asc"]::after { content: " \25B2"; }
th[data-order="desc"]::after { content: " \25BC"; }
td.num { text-align: right; }
tr.failed td { background: #fff4f2; }
.crit-3 { color: #b3261e; font-weight: 600; }
.crit-2 { color: #b35c00; font-weight: 600; }
details ul { margin: 4px 0 0; padding-left: 18px; }
.pager { margin: 8px 0; display: flex; gap: 8px; align-items: center; }
)";

// The script that builds the table of computers from the embedded data.
const char kScript[] = R"(
(function () {
  var data = JSON.parse(document.getElementById('fleet-data').textContent);
  var rows = data.computers;
  var pageSize = 100, page = 0, sortKey = null, sortOrder = 1;
  var body = document.querySelector('#computers tbody');
  var filter = document.getElementById('filter');
  var show = document.getElementById('show');
  var info = document.getElementById('page-info');
  var critRank = { '3': 3, '2': 2, '1': 1, 'unspecified': 0, '': -1 };

  function text(value) { return value === null || value === undefined ? '' : String(value); }
  function cell(row, content, cls) {
    var td = document.createElement('td');
    if (cls) td.className = cls;
    td.textContent = content;
    row.appendChild(td);
    return td;
  }
  function matches(c, words) {
    if (show.value === 'pending' && !(c.newer > 0)) return false;
    if (show.value === 'failed' && !c.error) return false;
    if (words.length === 0) return true;
    var hay = [c.system, c.inventory, c.bundle, c.error ? c.error.message : ''];
    (c.pending || []).forEach(function (p) { hay.push(p.name, p.application, p.device, p.category); });
    hay = hay.join('\n').toLowerCase();
    return words.every(function (w) { return hay.indexOf(w) >= 0; });
  }
  function key(c, k) {
    if (k === 'highest') return c.error ? -2 : critRank[text(c.highest)];
    if (k === 'newer' || k === 'same' || k === 'older' || k === 'unknown') return c.error ? -1 : c[k];
    return text(c[k]).toLowerCase();
  }
  function render() {
    var words = filter.value.toLowerCase().split(/\s+/).filter(function (w) { return w; });
    var list = rows.filter(function (c) { return matches(c, words); });
    if (sortKey) {
      list = list.map(function (c, i) { return [c, i]; });
      list.sort(function (a, b) {
        var x = key(a[0], sortKey), y = key(b[0], sortKey);
        return x < y ? -sortOrder : x > y ? sortOrder : a[1] - b[1];
      });
      list = list.map(function (p) { return p[0]; });
    }
    var pages = Math.max(1, Math.ceil(list.length / pageSize));
    page = Math.min(page, pages - 1);
    body.textContent = '';
    list.slice(page * pageSize, (page + 1) * pageSize).forEach(function (c) {
      var tr = document.createElement('tr');
      tr.className = c.error ? 'computer failed' : 'computer';
      tr.dataset.inventory = c.inventory;
      cell(tr, c.system || '-', 'system');
      cell(tr, c.inventory, 'inventory');
      if (c.error) {
        cell(tr, 'failed: ' + c.error.code, 'bundle');
        var td = cell(tr, c.error.message, 'error');
        td.colSpan = 6;
      } else {
        cell(tr, c.bundle, 'bundle');
        cell(tr, c.newer, 'num newer');
        cell(tr, c.same, 'num');
        cell(tr, c.older, 'num');
        cell(tr, c.unknown, 'num');
        cell(tr, c.highest || 'none', 'highest crit-' + text(c.highest));
        var pending = cell(tr, '', 'pending');
        if (c.pending.length > 0) {
          var details = document.createElement('details');
          var summary = document.createElement('summary');
          summary.textContent = c.pending.length + (c.pending.length === 1 ? ' package' : ' packages');
          details.appendChild(summary);
          var ul = document.createElement('ul');
          c.pending.forEach(function (p) {
            var li = document.createElement('li');
            li.className = 'package';
            li.textContent = p.name + ' ' + p.available + ' (installed ' + p.installed + ', criticality ' +
              p.criticality + ', ' + p.category + ') for ' + p.application;
            li.title = p.location;
            ul.appendChild(li);
          });
          details.appendChild(ul);
          pending.appendChild(details);
        }
      }
      body.appendChild(tr);
    });
    info.textContent = list.length + ' of ' + rows.length + ' computers' +
      (pages > 1 ? ', page ' + (page + 1) + ' of ' + pages : '');
    document.getElementById('prev').disabled = page === 0;
    document.getElementById('next').disabled = page >= pages - 1;
  }
  // The view lives in the address (#filter=...&show=...&sort=...&order=...),
  // so that it can be bookmarked and shared.
  function header(k) { return document.querySelector('#computers th[data-key="' + k + '"]'); }
  function markSorted() {
    document.querySelectorAll('#computers th').forEach(function (h) { h.removeAttribute('data-order'); });
    if (sortKey) header(sortKey).dataset.order = sortOrder > 0 ? 'asc' : 'desc';
  }
  function remember() {
    var params = new URLSearchParams();
    if (filter.value) params.set('filter', filter.value);
    if (show.value !== 'all') params.set('show', show.value);
    if (sortKey) { params.set('sort', sortKey); params.set('order', sortOrder > 0 ? 'asc' : 'desc'); }
    try { history.replaceState(null, '', '#' + params.toString()); } catch (e) { /* a view that cannot be kept */ }
  }
  function naturalOrder(k) { return k === 'system' || k === 'inventory' || k === 'bundle' ? 1 : -1; }
  var start = new URLSearchParams(location.hash.slice(1));
  filter.value = start.get('filter') || '';
  if (['all', 'pending', 'failed'].indexOf(start.get('show')) >= 0) show.value = start.get('show');
  if (start.get('sort') && header(start.get('sort'))) {
    sortKey = start.get('sort');
    sortOrder = start.get('order') === 'asc' ? 1 : start.get('order') === 'desc' ? -1 : naturalOrder(sortKey);
  }
  filter.addEventListener('input', function () { page = 0; remember(); render(); });
  show.addEventListener('change', function () { page = 0; remember(); render(); });
  document.getElementById('prev').addEventListener('click', function () { page--; render(); });
  document.getElementById('next').addEventListener('click', function () { page++; render(); });
  document.querySelectorAll('#computers th[data-key]').forEach(function (th) {
    th.addEventListener('click', function () {
      var k = th.dataset.key;
      sortOrder = sortKey === k ? -sortOrder : naturalOrder(k);
      sortKey = k;
      markSorted();
      remember();
      render();
    });
  });
  markSorted();
  render();
})();
)";

class HtmlReport : public FleetReport {
public:
    HtmlReport(FleetHeader header, FleetWriter write) : mHeader(std::move(header)), mWrite(std::move(write)) {}

    void Add(const FleetResult& result) override
    {
        const Json line = Json::parse(result.line);
        const ComputerSummary computer = Summarize(line);
        mTotals.Add(computer);
        Json entry;
        entry["inventory"] = computer.inventory;
        entry["system"] = computer.systemID;
        if (!computer.errorCode.empty()) {
            entry["error"] = {{"code", computer.errorCode}, {"message", computer.errorMessage}};
            mComputers.push_back(std::move(entry));
            ++mByCriticality["failed"];
            return;
        }
        entry["bundle"] = computer.bundleID + " (" + computer.bundleType + ")";
        entry["newer"] = computer.newer;
        entry["same"] = computer.same;
        entry["older"] = computer.older;
        entry["unknown"] = computer.unknown;
        entry["highest"] = computer.highestCriticality;
        Json pending = Json::array();
        for (const Json& update : line["updates"]) {
            if (update["status"] != "newer") {
                continue;
            }
            std::string category = update["category"]["text"].get<std::string>();
            if (category.empty()) {
                category = update["category"]["code"].get<std::string>();
            }
            ++mByCategory[category.empty() ? "(no category)" : category];
            pending.push_back({{"device", update["device"]},
                               {"application", update["application"]},
                               {"name", update["name"]},
                               {"installed", update["installed_version"]},
                               {"available", update["available_version"]},
                               {"criticality", update["criticality"]},
                               {"category", category},
                               {"location", update["location"]}});
        }
        entry["pending"] = std::move(pending);
        mComputers.push_back(std::move(entry));
        ++mByCriticality[computer.highestCriticality.empty() ? "none" : computer.highestCriticality];
    }

    void Finish() override
    {
        const FleetTotals& t = mTotals;
        std::string out = "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n";
        out += "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; "
               "style-src 'unsafe-inline'; script-src 'unsafe-inline'; img-src data:\">\n";
        out += "<title>Fleet updates: catalog " + Escape(mHeader.catalogRelease) + "</title>\n";
        out += "<style>" + std::string(kStyle) + "</style>\n</head>\n<body>\n";
        out += "<h1>Fleet updates</h1>\n<p class=\"sub\">Catalog " + Escape(mHeader.catalogRelease) + " (" +
               Escape(mHeader.catalog) + "), bundle type " + Escape(mHeader.bundleType) + "</p>\n";

        out += "<section class=\"totals\" id=\"totals\">\n";
        const std::vector<std::pair<std::string, std::size_t>> totals = {
            {"computers", t.evaluated + t.failed}, {"evaluated", t.evaluated},    {"failed", t.failed},
            {"with pending updates", t.withNewer}, {"pending packages", t.newer}, {"same version", t.same},
            {"older in catalog", t.older},         {"unknown order", t.unknown}};
        for (const auto& total : totals) {
            out += "<div class=\"total\" data-total=\"" + Escape(total.first) + "\"><b>" +
                   std::to_string(total.second) + "</b>" + Escape(total.first) + "</div>\n";
        }
        out += "</section>\n<section class=\"charts\">\n";

        std::vector<Bar> criticality;
        const std::vector<std::pair<std::string, std::string>> levels = {
            {"3", "#b3261e"},           {"2", "#e07b00"},    {"1", "#e8c200"},
            {"unspecified", "#8a93a6"}, {"none", "#2e8b57"}, {"failed", "#4a4f5c"}};
        for (const auto& level : levels) {
            const std::string label = level.first == "none"     ? "nothing pending"
                                      : level.first == "failed" ? "failed"
                                                                : "criticality " + level.first;
            criticality.push_back({label, mByCriticality[level.first], level.second});
        }
        out += BarChart("chart-criticality", "Computers by highest pending criticality", criticality);

        std::vector<std::pair<std::string, std::size_t>> categories(mByCategory.begin(), mByCategory.end());
        std::stable_sort(categories.begin(), categories.end(),
                         [](const auto& a, const auto& b) { return a.second > b.second; });
        std::vector<Bar> categoryBars;
        const std::size_t shown = 12;
        std::size_t other = 0;
        for (std::size_t i = 0; i < categories.size(); ++i) {
            if (i < shown) {
                categoryBars.push_back({categories[i].first, categories[i].second, "#3b6fd4"});
            } else {
                other += categories[i].second;
            }
        }
        if (other > 0) {
            categoryBars.push_back({"other categories", other, "#8a93a6"});
        }
        if (categoryBars.empty()) {
            out += "<figure class=\"chart\"><figcaption>Pending packages by category</figcaption>"
                   "<p>No pending packages.</p></figure>\n";
        } else {
            out += BarChart("chart-categories", "Pending packages by category", categoryBars);
        }
        out += "</section>\n";

        out += "<section>\n<div class=\"controls\"><input id=\"filter\" type=\"search\" "
               "placeholder=\"Filter by system, inventory, package, device, category\" aria-label=\"Filter\">"
               "<select id=\"show\" aria-label=\"Show\"><option value=\"all\">all computers</option>"
               "<option value=\"pending\">with pending updates</option><option value=\"failed\">failed</option>"
               "</select></div>\n";
        out += "<div class=\"pager\"><button id=\"prev\" type=\"button\">Previous</button>"
               "<button id=\"next\" type=\"button\">Next</button><span id=\"page-info\"></span></div>\n";
        out += "<table id=\"computers\"><thead><tr><th data-key=\"system\">System</th>"
               "<th data-key=\"inventory\">Inventory</th><th data-key=\"bundle\">Bundle</th>"
               "<th data-key=\"newer\">Newer</th><th data-key=\"same\">Same</th><th data-key=\"older\">Older</th>"
               "<th data-key=\"unknown\">Unknown</th><th data-key=\"highest\">Highest criticality</th>"
               "<th>Pending packages</th></tr></thead><tbody></tbody></table>\n";
        out += "<noscript><p>The table of computers needs JavaScript; the data is in the page's "
               "fleet-data element.</p></noscript>\n</section>\n";

        Json data;
        data["catalog"] = mHeader.catalog;
        data["catalog_release"] = mHeader.catalogRelease;
        data["bundle_type"] = mHeader.bundleType;
        data["computers"] = std::move(mComputers);
        out += "<script id=\"fleet-data\" type=\"application/json\">" + ScriptJson(data) + "</script>\n";
        out += "<script>" + std::string(kScript) + "</script>\n</body>\n</html>\n";
        mComputers = Json::array();
        mWrite(out);
    }

private:
    FleetHeader mHeader;
    FleetWriter mWrite;
    Json mComputers = Json::array();
    std::map<std::string, std::size_t> mByCriticality;
    std::map<std::string, std::size_t> mByCategory;
    FleetTotals mTotals;
};

}  // namespace

std::unique_ptr<FleetReport> MakeHtmlFleetReport(const FleetHeader& header, FleetWriter write)
{
    return std::make_unique<HtmlReport>(header, std::move(write));
}

}  // namespace qrmtool
