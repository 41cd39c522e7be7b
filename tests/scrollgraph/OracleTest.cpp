// SPDX-License-Identifier: MIT
// The scrolling graph beside a plain model: random feeding, scrolling and sizes; view, scroll bar, notifications, drawn
// samples, hits and the whole time axis are compared. tests/identity compares the pixels of the lines.

#include "tests/scrollgraph/FixedZone.h"
#include "tests/scrollgraph/ScrollTest.h"
#include "tests/support/GdiCounter.h"
#include "tests/support/Numbers.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <optional>

namespace {

/// What the header promises that the control holds, in plain vectors and with plain walks.
class PlainScroll {
public:
    explicit PlainScroll(const OpenScrollGraph& graph) : g(graph) {}

    std::vector<std::int32_t> times;
    int sizes[CGraphCtrl::DatasetCount] = {};
    double pos = 0, max = 1200, min = 0, width = 1200;
    bool followed = false;
    std::string bar = "0..1200 page 1197 pos 0";

    double X(int i) const {
        const bool exists = i >= 0 && i < Count();
        return exists ? static_cast<std::int32_t>(static_cast<std::uint32_t>(times[i] - times[0]) * 20u) : 0;
    }
    void Add(int dataset) {
        const int n = sizes[dataset]++;
        const double newest = X(n - 1), next = n > 0 ? X(n) : 0;
        followed = n > 0 && newest >= pos && newest <= pos + width && next > pos + 0.9 * width;
        if (followed)
            pos = next - 0.9 * width;
        else if (next > max && next > width)
            max = next + 0.1 * width;
        else if (next < min)
            min = next;
        else
            return;
        Normalize();
        UpdateBar();
    }
    void Normalize() {
        pos = std::max(pos, min);
        max = std::max(max, pos + width);
    }
    void UpdateBar() {
        const int page = std::min(static_cast<int>(width / (max - min) * 1200), 1197);
        const int at = static_cast<int>((pos - min) / (max - min) * 1200);
        bar = "0..1200 page " + std::to_string(page) + " pos " +
              std::to_string(std::clamp(at, 0, 1200 - std::max(page - 1, 0)));
    }
    void ShowNewest() {
        pos = 0;
        max = 1200;
        const double newest = X(sizes[0] - 1);
        if (newest > pos + 0.9 * width)
            pos = newest - 0.9 * width;
        Normalize();
        UpdateBar();
    }
    void RemoveHead(int count) {
        times.erase(times.begin(), times.begin() + std::min(count, Count()));
        for (int& size : sizes)
            size = std::max(size - count, 0);
        ShowNewest();
    }
    /// Whether the parent hears of it.
    bool Scroll(UINT code, int thumb) {
        if (code == SB_LINELEFT && pos < 1)
            return false;
        switch (code) {
        case SB_LINELEFT:
            pos -= 0.01 * width;
            break;
        case SB_LINERIGHT:
            pos += 0.01 * width;
            break;
        case SB_PAGELEFT:
            pos = std::max(pos - 0.5 * width, 0.0);
            break;
        case SB_PAGERIGHT:
            pos += 0.5 * width;
            break;
        case SB_THUMBTRACK:
            pos = (max - min) * (thumb * 0.0008333333333333334) + min;
            break;
        default:
            return false;
        }
        pos = std::max(std::min(pos, max - width), min);
        UpdateBar();
        return true;
    }
    void Wheel(int delta) {
        if (delta >= 0 && pos < 1)
            return;
        Scroll(delta < 0 ? SB_LINERIGHT : SB_LINELEFT, 0);
    }

    int LowerBound() const {
        int i = 0;
        while (i < Count() - 1 && X(i) < pos)
            ++i;
        return i;
    }
    int First() const { return std::max(LowerBound() - 1, 0); }
    int Last() const {
        const int room = static_cast<int>(width * 0.05) + LowerBound() - 1;
        return std::min(std::min(room <= Count() ? room : Count() - 1, Count() - 1) + 1, Count() - 1);
    }
    int Place(int i) const {
        return static_cast<int>((X(i) - pos) * g.m_rectPlot.Width() / width + g.m_rectPlot.left);
    }
    int Nearest(int x) const {
        int found = -1;
        const int last = std::min(Last(), *std::max_element(sizes, std::end(sizes)) - 1);
        for (int i = First(); i <= last; ++i)
            if (found < 0 || std::abs(Place(i) - x) < std::abs(Place(found) - x))
                found = i;
        return found;
    }

    /// The records of the axis with room for `ticks`, of which labels closer than their texts are left out.
    Strings Axis(int ticks, const std::function<int(int)>& column) const {
        const CRect axis = g.m_rectXAxis, plot = g.m_rectPlot;
        Strings lines{Stroke(axis.left, axis.top, axis.right, axis.top, kPen)};
        if (ticks < 2 || sizes[0] == 0)
            return lines;
        const int step = Step(ticks);
        const int spacing = static_cast<int>(step * 20.0 * plot.Width() / width);
        const long start = Count() > 0 ? times[LowerBound()] : 0;
        long time = (start + step - 1) / step * step; // every step divides a day of UTC
        std::string date;
        std::optional<int> before;
        for (int x = plot.left + static_cast<int>(plot.Width() * 20.0 / width * (time - start));
             x <= plot.right; x += spacing, time += step) {
            if (!before || column(*before) != column(x)) {
                lines.push_back(Stroke(x, axis.bottom, x, axis.top, kPen));
                if (g.m_GridX)
                    lines.push_back(Stroke(x, axis.top, x, plot.top, "dot 0 B9DDC1"));
            }
            before = x;
            if (spacing < kLabelRoom)
                continue;
            const std::string text = FullText(time);
            if (text.substr(5, 5) == date) {
                lines.push_back(Label(x - 110, "top", text.substr(11)));
            } else {
                date = text.substr(5, 5);
                lines.push_back(Label(x + 70, "bottom", date));
                lines.push_back(Label(x, "top", text.substr(11)));
            }
        }
        return lines;
    }
    bool HasLabels(int ticks) const {
        return static_cast<int>(Step(ticks) * 20.0 * g.m_rectPlot.Width() / width) >= kLabelRoom;
    }

private:
    static constexpr int kLabelRoom = 500; // more than the height of a text
    static constexpr const char* kPen = "solid 0 B9DDC1";

    int Count() const { return static_cast<int>(times.size()); }
    int Step(int ticks) const {
        for (const int step : {5, 10, 20, 30, 60, 120, 180, 300, 600, 900, 1200, 1800, 3600, 7200})
            if (static_cast<int>(width / 20) / step <= ticks + 1)
                return step;
        return 10800;
    }
    static std::string FullText(std::time_t time) {
        char text[40];
        std::strftime(text, sizeof text, "%Y/%m/%d %H:%M:%S", std::gmtime(&time));
        return text;
    }
    std::string Label(int x, const char* align, const std::string& text) const {
        return "text " + std::to_string(x) + "," + std::to_string(g.m_rectXTickLabel.top + 100) + " right|" +
               align + " 3F7F4D Arial 300 @900 \"" + text + "\"";
    }

    const OpenScrollGraph& g;
};

} // namespace

class ScrollOracleTest : public ScrollTest {
protected:
    void Feed() {
        const int datasets = 1 + numbers.Below(2);
        for (int i = numbers.Below(numbers.OneIn(4) ? 90 : 8); i >= 0 && model.times.size() < 600; --i) {
            m_time += numbers.OneIn(25) ? numbers.Below(3000) : numbers.Below(3);
            Stamp({m_time});
            model.times.push_back(static_cast<std::int32_t>(m_time));
            for (int dataset = 0; dataset < datasets; ++dataset) {
                if (numbers.OneIn(12)) {
                    ASSERT_EQ(graph.AddDataForOffline(dataset, 1, nullptr), 1);
                    ++model.sizes[dataset];
                    model.followed = false;
                } else {
                    ASSERT_EQ(graph.AddData(dataset, 1, nullptr), 1);
                    model.Add(dataset);
                }
            }
        }
    }
    void Scroll() {
        const UINT codes[] = {SB_LINELEFT,  SB_LINERIGHT,  SB_PAGELEFT,
                              SB_PAGERIGHT, SB_THUMBTRACK, SB_THUMBPOSITION,
                              SB_LEFT,      SB_ENDSCROLL,  77};
        const UINT code = codes[numbers.Below(static_cast<int>(std::size(codes)))];
        const int thumb = numbers.OneIn(8) ? 65535 : numbers.Below(1201);
        const bool sync = numbers.OneIn(2);
        graph.SetScrollSync(sync);
        const Strings told = Send(WM_HSCROLL, MAKEWPARAM(code, thumb), 0);
        const bool handled = model.Scroll(code, thumb);
        const Strings notification{"notify 1264 id 77 flags 0 at 0,0 index " +
                                   std::to_string(static_cast<int>(model.pos)) + " count 0"};
        EXPECT_EQ(told, sync && handled ? notification : Strings()) << "code " << code;
    }
    void Change() {
        const double minutes[] = {0.1, 0.5, 1, 2.5, 7, 30, 200, 1440, 20000};
        switch (numbers.Below(12)) {
        case 0: {
            const int count = numbers.Below(numbers.OneIn(5) ? 700 : 30);
            graph.RemoveHeadData(count);
            model.RemoveHead(count);
            break;
        }
        case 1: {
            const double wide = minutes[numbers.Below(static_cast<int>(std::size(minutes)))];
            graph.SetHorzRange(wide);
            model.width = wide * 1200;
            model.ShowNewest();
            break;
        }
        case 2: {
            const short delta = static_cast<short>(numbers.Below(241) - 120);
            EXPECT_EQ(Traffic([&] { graph.ProcessMouseWheel(delta); }), Strings());
            model.Wheel(delta);
            break;
        }
        case 3:
            Resize(280 + numbers.Below(500), 180 + numbers.Below(300));
            model.UpdateBar();
            break;
        case 4:
            graph.SetScrollLastPos();
            graph.Normalize();
            graph.UpdateScrollInfo();
            model.ShowNewest();
            break;
        case 5:
            if (numbers.OneIn(3)) {
                graph.InitScrollInfo();
                model.pos = model.min = 0;
                model.max = 1200;
                model.UpdateBar();
            }
            break;
        case 6:
        case 7:
        case 8:
            Scroll();
            break;
        default:
            Feed();
        }
    }
    void CompareView(const std::string& place) {
        ASSERT_DOUBLE_EQ(graph.m_dScrollPos, model.pos) << place;
        ASSERT_DOUBLE_EQ(graph.m_dScrollMax, model.max) << place;
        ASSERT_DOUBLE_EQ(graph.m_dScrollMin, model.min) << place;
        ASSERT_EQ(graph.m_dViewWidth, model.width) << place;
        ASSERT_EQ(graph.m_bFollowed != 0, model.followed) << place;
        ASSERT_EQ(Bar(), model.bar) << place;
        ASSERT_EQ(graph.GetCurDataIndex(), static_cast<int>(model.times.size())) << place;
    }
    void ComparePicture(const std::string& place) {
        graph.SetGrid(TRUE, numbers.OneIn(2));
        Record();
        EXPECT_EQ(graph.m_nDrawFirst, model.First()) << place;
        EXPECT_EQ(graph.m_nDrawLast, model.Last()) << place;
        const CRect plot = graph.m_rectPlot;
        for (int i = 0; i < 12 && !plot.IsRectEmpty(); ++i) {
            const int x = plot.left + numbers.Below(plot.Width() + 200) - 100;
            const int hit = x < plot.left || x >= plot.right ? -1 : model.Nearest(x);
            EXPECT_EQ(graph.GetIndexFromPt(CPoint(x, plot.top)), hit) << place << " x " << x;
        }
        const int ticks = numbers.Below(14);
        const auto axis = RecordXAxis(ticks);
        Strings lines = axis->Lines(testkit::kAll);
        if (!model.HasLabels(ticks))
            lines.erase(
                std::remove_if(lines.begin(), lines.end(), [](const std::string& s) { return s[0] == 't'; }),
                lines.end());
        EXPECT_EQ(lines, model.Axis(ticks,
                                    [&](int x) {
                                        return static_cast<int>(ToDevice({x, 0, x, 0}).left);
                                    }))
            << place << " ticks " << ticks;
        EXPECT_EQ(axis->FinalState().pen + axis->FinalState().font, "nullstock");
        EXPECT_EQ(axis->ObjectFaults({"Arial 300 @900"}), "");
    }

    testkit::Numbers numbers{20261122};
    PlainScroll model{graph};

private:
    FixedZone m_zone;
    long m_time = 1700006380; // 23:59:40
};

TEST_F(ScrollOracleTest, RandomFeedingAndScrollingEqualsThePlainModel) {
    testkit::ObjectCounts before;
    for (int round = 0; round < 900 && !HasFailure(); ++round) {
        if (round == 200) // what the platform keeps for itself is made by then
            before = testkit::CountObjects();
        const std::string place = "round " + std::to_string(round);
        Change();
        ASSERT_NO_FATAL_FAILURE(CompareView(place));
        if (round % 3 == 0)
            ComparePicture(place);
    }
    EXPECT_EQ(testkit::CountObjects(), before);
}
