// SPDX-License-Identifier: MIT
// Compares the pictures of all painting shortcuts with those of a plain walk over every sample, in random
// views.
#include "tests/identity/PlainWalk.h"
#include "tests/support/DibSurface.h"
#include "tests/support/MetafileRecorder.h"
#include "tests/support/RecordingParent.h"
#include "tests/support/SeenUnderWine.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

namespace {

constexpr int kDefaultViews = 1600; // unless the environment variable KAVLIX_VIEWS sets another number
constexpr double kInfinity = std::numeric_limits<double>::infinity();

int Views() {
    const char* wanted = std::getenv("KAVLIX_VIEWS");
    return wanted != nullptr ? std::atoi(wanted) : kDefaultViews;
}

/// A random sequence that is the same on every machine.
class Dice {
public:
    explicit Dice(unsigned seed) : m_engine(seed) {}
    int UpTo(int most) { return static_cast<int>(m_engine() % (static_cast<unsigned>(most) + 1u)); }
    bool OneIn(int n) { return UpTo(n - 1) == 0; }
    double Share() { return m_engine() / 4294967296.0; }
    double Within(double low, double high) { return low + (high - low) * Share(); }
    /// 1 to `most`; each order of magnitude is equally likely.
    int Size(int most) { return static_cast<int>(std::exp(Within(0, std::log(most + 0.999)))); }

private:
    std::mt19937 m_engine;
};

enum Shape { Walk, Noise, Steps, Spikes, Constant, Gaps, Infinities, Faraway, Mixed, ShapeCount };

double Sample(Shape shape, int index, double& state, Dice& dice) {
    switch (shape) {
    case Walk:
        return state += dice.Within(-2, 2);
    case Noise:
        return dice.Within(0, 100);
    case Steps:
        return dice.OneIn(40) ? state = dice.UpTo(10) * 10.0 : state;
    case Spikes:
        return dice.OneIn(60) ? dice.Within(-1e4, 1e4) : 50 + dice.Within(-1, 1);
    case Constant:
        return 50;
    case Gaps:
        return index / 7 % 5 == 2 || dice.OneIn(50) ? std::nan("") : state += dice.Within(-3, 3);
    case Infinities:
        return dice.OneIn(30)   ? (dice.OneIn(2) ? kInfinity : -kInfinity)
               : dice.OneIn(30) ? 1e300
                                : dice.Within(0, 100);
    case Faraway: // both ends of each stroke lie outside the view
        return (index % 2 == 0 ? 1 : -1) * dice.Within(3e4, 1e5);
    default:
        return Sample(static_cast<Shape>(index / 97 % Mixed), index, state, dice);
    }
}

/// The properties of a view that make the plain walk slow, and limits for the number of samples.
struct Cost {
    bool isLong, isWide;

    Cost(int view, Dice& dice) : isLong(view % 40 == 0), isWide(dice.OneIn(isLong ? 5 : 3)) {}
    int Samples(Dice& dice) const {
        return !isLong ? dice.Size(2000) : isWide ? 5000 + dice.UpTo(5000) : 20000 + dice.UpTo(80000);
    }
    /// GDI is slow with wide strokes from far away, so such views get fewer samples.
    int Fewer(int samples, Shape shape) const {
        return isWide && shape >= Infinities ? std::min(samples, shape == Faraway ? 30 : 12) : samples;
    }
};

/// Plays the records of a metafile in the mapping of `dc`, so that GDI rounds as on the screen.
void Replay(HENHMETAFILE picture, HDC dc) {
    const auto play = [](HDC, HANDLETABLE* table, const ENHMETARECORD* record, int handles, LPARAM to) {
        const HDC target = reinterpret_cast<HDC>(to);
        if (record->iType == EMR_EXTSELECTCLIPRGN && ::GetMapMode(target) == MM_TEXT)
            return 1; // in an enlarged picture the clip regions keep their size
        if (record->iType == EMR_EXTSELECTCLIPRGN) {
            const auto* clip = reinterpret_cast<const EMREXTSELECTCLIPRGN*>(record);
            const HRGN region = clip->cbRgnData == 0
                                    ? nullptr
                                    : ::ExtCreateRegion(nullptr, clip->cbRgnData,
                                                        reinterpret_cast<const RGNDATA*>(clip->RgnData));
            ::ExtSelectClipRgn(target, region, static_cast<int>(clip->iMode));
            ::DeleteObject(region);
        } else if (record->iType == EMR_RECTANGLE ||
                   record->iType == EMR_ELLIPSE) { // recorded without right and bottom edge
            const RECTL& box = reinterpret_cast<const EMRRECTANGLE*>(record)->rclBox;
            (record->iType == EMR_ELLIPSE ? ::Ellipse : ::Rectangle)(target, box.left, box.top, box.right + 1,
                                                                     box.bottom + 1);
        } else if (record->iType < EMR_SETWINDOWEXTEX || record->iType > EMR_SETVIEWPORTORGEX) {
            if (record->iType != EMR_SETMAPMODE && record->iType != EMR_HEADER)
                ::PlayEnhMetaFileRecord(target, table, record, static_cast<UINT>(handles));
        }
        return 1;
    };
    const int state = ::SaveDC(dc);
    ::EnumEnhMetaFile(nullptr, picture, play, reinterpret_cast<void*>(dc), nullptr);
    ::RestoreDC(dc, state);
}

template <class Graph> HENHMETAFILE Record(Graph& graph) {
    const HDC recording = ::CreateEnhMetaFile(nullptr, nullptr, nullptr, nullptr);
    graph.Paint(recording);
    return ::CloseEnhMetaFile(recording);
}

/// Pictures of one size that are compared, and a DC whose bitmap is not a DIB section: all strokes on it go
/// through GDI.
class Pictures {
public:
    Pictures(int width, int height)
        : fast(width, height), slow(width, height), drawn(width, height), m_size(width, height) {
        m_screen = ::GetDC(nullptr);
        m_dc = ::CreateCompatibleDC(m_screen);
        m_bitmap = ::CreateCompatibleBitmap(m_screen, width, height);
        m_before = ::SelectObject(m_dc, m_bitmap);
        ::PatBlt(m_dc, 0, 0, width, height, WHITENESS);
    }
    ~Pictures() {
        ::SelectObject(m_dc, m_before);
        ::DeleteObject(m_bitmap);
        ::DeleteDC(m_dc);
        ::ReleaseDC(nullptr, m_screen);
    }

    /// Compares the plain picture with those of the shortcuts: painted directly, by GDI, and from a metafile.
    /// Empty when all are equal.
    template <class Graph> std::string Compare(Graph& graph) {
        graph.isPlain = true;
        graph.Paint(slow.Dc());
        graph.isPlain = false;
        graph.Paint(fast.Dc());
        graph.Paint(m_dc);
        ::SetMapMode(m_dc, MM_TEXT);
        ::SetMapMode(drawn.Dc(), MM_TEXT);
        ::BitBlt(drawn.Dc(), 0, 0, m_size.cx, m_size.cy, m_dc, 0, 0, SRCCOPY);
        std::string faults = testkit::Difference(fast, slow);
        if (const std::string strokes = testkit::Difference(drawn, slow); !strokes.empty())
            faults += " strokes: " + strokes;
        if (m_compared++ % 3 == 0)
            faults += MetafileFaults(graph);
        return faults;
    }

    testkit::DibSurface fast, slow, drawn;

private:
    template <class Graph> std::string MetafileFaults(Graph& graph) {
        const HENHMETAFILE metafile = Record(graph);
        Replay(metafile, fast.Dc());
        CRect plot = graph.m_rectPlot; // the pixels of texts may differ
        ::LPtoDP(fast.Dc(), reinterpret_cast<POINT*>(&plot), 2);
        ENHMETAHEADER header = {};
        ::GetEnhMetaFileHeader(metafile, sizeof header, &header);
        ::DeleteEnhMetaFile(metafile);
        // In metafiles the edges of shortened wide strokes may be rounded differently.
        const std::string records =
            graph.ReachesFarWithAWidePen() ? "" : testkit::Difference(fast, slow, plot);
        CRect most(CPoint(0, 0), m_size), frame(reinterpret_cast<const RECT&>(header.rclBounds));
        most.InflateRect(100, 100); // texts may reach beyond the window
        return (records.empty() ? "" : " records: " + records) +
               (CRect(most | frame) == most ? "" : " frame: " + testkit::BoxText(frame));
    }

    int m_compared = 0;
    CSize m_size;
    HDC m_screen, m_dc;
    HBITMAP m_bitmap;
    HGDIOBJ m_before;
};

/// Sets pens, markers, visibility, ranges and the selection mark at random.
template <class Graph> void Dress(Graph& graph, Dice& dice, int longest, Cost cost) {
    static constexpr int kThinPens[] = {0, 15, 30, 44};
    static constexpr int kWidePens[] = {45, 60, 75, 90, 120, 300, 1000};
    const bool twoAxis = dice.OneIn(4);
    graph.SetGraphStyle(twoAxis ? CGraphCtrl::GraphStyleTwoAxis : CGraphCtrl::GraphStyleLine);
    for (int i = 0; i < CGraphCtrl::DatasetCount; ++i) {
        const int pen = cost.isWide ? kWidePens[dice.UpTo(6)] : kThinPens[dice.UpTo(3)];
        const int marker = cost.isLong || !dice.OneIn(3) ? 0 : dice.UpTo(CDataset::MarkerTypeCount);
        graph.SetLineSize(i, pen);
        graph.SetMarkerType(i, static_cast<CDataset::MarkerType>(marker));
        graph.ShowDataset(i, !dice.OneIn(8));
    }
    static constexpr double kEnds[][2] = {{0, 100},   {-20, 130},   {40, 60},    {100, 0},
                                          {102, 300}, {49.9, 50.1}, {-1e6, 1e6}, {60, -3}};
    const auto& y = kEnds[dice.UpTo(7)];
    graph.SetYVisibleMin(y[0]);
    graph.SetYVisibleMax(y[1]);
    graph.SetY2VisibleMin(dice.Within(-50, 50));
    graph.SetY2VisibleMax(dice.Within(50, 150));
    graph.SetGrid(dice.OneIn(2), dice.OneIn(2));
    graph.m_SelectionMarkPos = dice.OneIn(2) ? dice.UpTo(std::max(longest - 1, 0)) : -1;
}

class IdentityTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(parent.CreateVisible(700, 500)) << "no display"; }
    void TearDown() override {
        parent.DestroyWindow();
        testkit::Pump();
    }

    template <class Graph> void Open(Graph& graph, CSize size) {
        ASSERT_TRUE(
            graph.Create("MFCGraphCtrl", "", WS_CHILD | WS_VISIBLE, CRect(CPoint(0, 0), size), &parent, 7));
        graph.SetLegendWidth(300);
    }

    /// Compares `views` pictures of a graph. On Windows GDI may choose other pixels for a stroke. For each one, `dress(graph, dice, view)` adds data and sets
    /// properties.
    template <class Control, class DressGraph>
    void CompareViews(CSize size, int views, unsigned seed, DressGraph dress) {
        plain::Graph<Control> graph;
        ASSERT_NO_FATAL_FAILURE(Open(graph, size));
        Pictures pictures(size.cx, size.cy);
        graph.Paint(pictures.fast.Dc()); // computes the layout
        int shown = 0;
        for (int view = 0; view < views; ++view) {
            Dice dice(seed + static_cast<unsigned>(view));
            graph.ResetAll();
            dress(graph, dice, view);
            ONLY_SEEN_UNDER_WINE(ASSERT_EQ(pictures.Compare(graph), "")
                                 << "view " << view << " of " << size.cx);
            shown += pictures.fast.Count(graph.m_Datasets[0].m_Color) > 0;
        }
        graph.DestroyWindow();
        EXPECT_GT(shown, views / 3) << "views must show something";
    }

    testkit::RecordingParent parent;
};

} // namespace

TEST_F(IdentityTest, GraphsLookAsIfEverySampleWereDrawn) {
    const auto dress = [](auto& graph, Dice& dice, int view) {
        const Cost cost(view, dice);
        const int count = cost.Samples(dice);
        const int datasets = cost.isLong ? 1 : 1 + dice.UpTo(2);
        int longest = 0;
        for (int i = 0; i < datasets; ++i) {
            const Shape shape = static_cast<Shape>(dice.UpTo(ShapeCount - 1));
            const int most = cost.Fewer(count, shape);
            const int samples = i == 0 || dice.OneIn(2) ? most : dice.UpTo(most);
            double state = 50;
            for (int k = 0; k < samples; ++k)
                graph.AddData(i, Sample(shape, k, state, dice), nullptr);
            longest = std::max(longest, samples);
        }
        if (dice.OneIn(3) && longest > 4) { // remove samples up to the middle of a storage block
            const int head = dice.UpTo(longest / 2);
            graph.RemoveHeadData(head);
            longest -= head;
        }
        Dress(graph, dice, longest, cost);
        const double a = dice.Within(-0.2, 1.2) * longest, b = dice.Within(-0.2, 1.2) * longest;
        const double ends[][2] = {{0, longest - 1 + 0.001},
                                  {std::min(a, b), std::max(a, b)},
                                  {std::max(a, b), std::min(a, b)},
                                  {a, a + 0.5},
                                  {-a * 50, b * 50 + 1},
                                  {a, a},
                                  {-1e9, 1e9},
                                  {longest + 5.0, longest + 50.0}};
        const auto& x = ends[dice.OneIn(3) ? dice.UpTo(7) : dice.UpTo(1)];
        graph.SetXVisibleMin(x[0]);
        graph.SetXVisibleMax(x[1]);
    };
    CompareViews<CGraphCtrl>(CSize(230, 190), Views() * 3 / 8, 0, dress);
    CompareViews<CGraphCtrl>(CSize(420, 300), Views() * 3 / 8, 2000000, dress);
}

TEST_F(IdentityTest, ScrollingGraphsToo) {
    CompareViews<CScrollGraphCtrl>(
        CSize(260, 200), Views() / 4, 5000000, [](auto& graph, Dice& dice, int view) {
            const Cost cost(view, dice);
            const int count = cost.Samples(dice);
            // Equal time steps, uneven ones with repetitions, and some steps back.
            const int kind = dice.UpTo(5);
            long time = 1700000000;
            for (int k = 0; k < count; ++k) {
                graph.AddXTickLabel(time);
                time += kind < 3 ? kind + 1 : kind == 3 ? dice.UpTo(9) : dice.UpTo(1);
                if (kind == 5 && dice.OneIn(100))
                    time -= dice.UpTo(30);
            }
            for (int i = 0; i < 1 + view % 2; ++i) {
                const Shape shape = static_cast<Shape>(dice.UpTo(cost.isWide ? Gaps : Mixed));
                double state = 50;
                for (int k = 0; k < count - i * dice.UpTo(5); ++k)
                    graph.AddDataForOffline(i, Sample(shape, k, state, dice), nullptr);
            }
            graph.SetHorzRange(dice.OneIn(2) ? count / 60.0 : dice.Within(0.05, 30));
            if (dice.OneIn(2))
                graph.ViewPos() = dice.Within(-0.2, 1.1) * count * 20;
            Dress(graph, dice, count, cost);
        });
}

TEST_F(IdentityTest, BarsTooHoweverTheyAreFilled) {
    CompareViews<CGraphCtrl>(CSize(300, 220), Views() / 10, 7000000, [](auto& graph, Dice& dice, int view) {
        const int count = dice.Size(300);
        const Shape shape = static_cast<Shape>(dice.UpTo(ShapeCount - 1));
        for (int i = 0; i < 1 + view % 4; ++i) {
            double state = 50;
            for (int k = 0; k < count; ++k)
                graph.AddData(i, Sample(shape, k, state, dice), nullptr);
        }
        Dress(graph, dice, count, Cost(1, dice));
        graph.SetGraphStyle(CGraphCtrl::GraphStyleBar);
        graph.SetXVisibleMin(dice.OneIn(2) ? 0 : dice.Within(-0.2, 1) * count);
        graph.SetXVisibleMax(dice.Within(0, 1.3) * count);
    });
}

TEST_F(IdentityTest, BitmapsWithTheLowestRowFirst) {
    plain::Graph<CGraphCtrl> graph;
    ASSERT_NO_FATAL_FAILURE(Open(graph, CSize(230, 190)));
    Dice dice(1);
    for (int i = 0; i < 300; ++i)
        graph.AddData(0, dice.Within(0, 100), nullptr);
    graph.SetXVisibleMax(299);
    graph.SetYVisibleMax(100);
    // Each number of rows: the plot's first row may be the middle row of the bitmap.
    for (int rows = 50; rows < 120; ++rows) {
        testkit::DibSurface topFirst(230, rows), copied(230, rows);
        CDC bottomFirst;
        ASSERT_TRUE(bottomFirst.CreateCompatibleDC(nullptr));
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = 230;
        info.bmiHeader.biHeight = rows;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* pixels = nullptr;
        CBitmap bitmap;
        ASSERT_TRUE(bitmap.Attach(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pixels, nullptr, 0)));
        CBitmap* const before = bottomFirst.SelectObject(&bitmap);
        bottomFirst.PatBlt(0, 0, 230, rows, WHITENESS);
        for (const HDC dc : {topFirst.Dc(), bottomFirst.m_hDC}) {
            const int saved = ::SaveDC(dc);
            graph.Paint(dc);
            ::RestoreDC(dc, saved);
        }
        ::BitBlt(copied.Dc(), 0, 0, 230, rows, bottomFirst, 0, 0, SRCCOPY);
        bottomFirst.SelectObject(before);
        ONLY_SEEN_UNDER_WINE(ASSERT_EQ(testkit::Difference(topFirst, copied), "") << rows << " rows");
    }
    graph.DestroyWindow();
}

TEST_F(IdentityTest, LinesOfManyPoints) {
    // So wide that GDI draws a line in several parts, with points inside and far outside the view.
    CompareViews<CGraphCtrl>(CSize(2600, 160), 12, 0, [](auto& graph, Dice& dice, int view) {
        constexpr int kPerColumn = 8;
        constexpr double kHalves[] = {50, 5, 0.1};
        const bool isNoise = view % 2 != 0;
        const int pen = view / 2 % 2 * 60;
        const double half = kHalves[view / 4];
        const int count = graph.m_rectPlot.Width() / 30 * kPerColumn;
        for (int k = 0; k < count; ++k) {
            // Either each pixel column is far from the next one, so that the strokes between them show, or
            // many strokes of a column come from far away.
            const int column = (graph.m_rectPlot.left + k * 30 / kPerColumn + 15) / 30;
            const double middle = column % 2 != 0 ? 80 : 20;
            graph.AddData(0, isNoise ? dice.Within(0, 100) : middle + dice.Within(-9, 9), nullptr);
        }
        graph.SetXVisibleMin(0);
        graph.SetXVisibleMax(count);
        graph.SetLineSize(0, pen);
        graph.SetYVisibleMin(50 - half);
        graph.SetYVisibleMax(50 + half);
    });
}

TEST_F(IdentityTest, MarkersOfManySamples) {
    CompareViews<CGraphCtrl>(CSize(230, 190), 25, 0, [](auto& graph, Dice& dice, int view) {
        constexpr int kSamples = 10000;
        constexpr Shape kShapes[] = {Walk, Steps, Spikes, Constant, Gaps};
        double state = 50;
        for (int k = 0; k < kSamples; ++k)
            graph.AddData(0, Sample(kShapes[view / 5], k, state, dice), nullptr);
        graph.SetMarkerType(0, static_cast<CDataset::MarkerType>(CDataset::MarkerSquare + view % 5));
        graph.SetXVisibleMin(0);
        graph.SetXVisibleMax(kSamples);
    });
}

TEST_F(IdentityTest, LinesEndBeforeGapsAndMarks) {
    // The last samples before a gap or the mark, one or many, lie alone on their row, and the gap begins with
    // a pixel column.
    CompareViews<CGraphCtrl>(CSize(230, 190), 60, 0, [](auto& graph, Dice& dice, int view) {
        const int perColumn = 5 + dice.UpTo(view % 4 == 3 ? 200 : 60);
        const int flat = view % 2 == 0 ? 1 : 1 + perColumn * 2 / 3;
        const int plotColumns = graph.m_rectPlot.Width() / 30;
        const int count = plotColumns * perColumn;
        const int phase = dice.UpTo(perColumn - 1);
        for (int i = 0; i < count; ++i) {
            const bool isGap = view % 3 != 0 && (i + phase) % perColumn == 0;
            const double before = flat > 1 ? 10 : dice.Within(80, 99), other = dice.Within(20, 70);
            const bool isBefore = (i + flat + phase) % perColumn < flat;
            graph.AddData(0, isGap ? std::nan("") : isBefore ? before : other, nullptr);
        }
        graph.SetXVisibleMin(0);
        graph.SetXVisibleMax(count);
        graph.m_SelectionMarkPos = (1 + dice.UpTo(plotColumns - 2)) * perColumn - phase;
    });
}

TEST_F(IdentityTest, EnlargedMetafilesToo) {
    // Enlarged to one pixel per logical unit.
    plain::Graph<CGraphCtrl> graph;
    const CSize size(110, 90);
    ASSERT_NO_FATAL_FAILURE(Open(graph, size));
    graph.ShowLegend(FALSE);
    graph.SetYTickLabelWidth(300);
    graph.SetXTickLabelHeight(300);
    testkit::DibSurface fast(size.cx * 30, size.cy * 30), slow(size.cx * 30, size.cy * 30);
    for (unsigned view = 0; view < 12; ++view) {
        Dice dice(view);
        const Shape shape = static_cast<Shape>(view % Infinities);
        const int count = 3000 + dice.Size(100000);
        graph.ResetAll();
        double state = 50, low = 50, high = 51;
        for (int k = 0; k < count; ++k) {
            const bool isCalm = shape <= Noise && k / 700 % 2 == 0;
            const double value = isCalm ? state + k % 9 * 0.3 * (k % 31 == 0) : Sample(shape, k, state, dice);
            graph.AddData(0, value, nullptr);
            low = std::fmin(low, value);
            high = std::fmax(high, value);
        }
        graph.SetYVisibleMin(low);
        graph.SetYVisibleMax(high);
        graph.SetMarkerType(0, static_cast<CDataset::MarkerType>(count < 9000 ? dice.UpTo(5) : 0));
        graph.SetXVisibleMin(0);
        graph.SetXVisibleMax(count);
        graph.m_SelectionMarkPos = dice.UpTo(count);
        graph.isPlain = false;
        const HENHMETAFILE shortened = Record(graph);
        graph.isPlain = true;
        const HENHMETAFILE whole = Record(graph);
        Replay(shortened, fast.Dc());
        Replay(whole, slow.Dc());
        ONLY_SEEN_UNDER_WINE(EXPECT_EQ(testkit::Difference(fast, slow, graph.m_rectPlot), "")
                             << "view " << view << ", " << count << " samples");
        constexpr UINT kBytesAUnit = 20;
        EXPECT_TRUE(graph.m_Datasets[0].GetMarkerType() != CDataset::MarkerNone ||
                    ::GetEnhMetaFileBits(shortened, 0, nullptr) <
                        static_cast<UINT>(graph.m_rectPlot.Width()) * kBytesAUnit);
        ::DeleteEnhMetaFile(shortened);
        ::DeleteEnhMetaFile(whole);
    }
    // 60,000 samples whose markers have about a thousand different positions.
    graph.ResetAll();
    for (int k = 0; k < 60000; ++k)
        graph.AddData(0, k * 7 % 40, nullptr);
    graph.SetXVisibleMax(6e6);
    graph.SetMarkerType(0, CDataset::MarkerSquare);
    graph.isPlain = false;
    const HENHMETAFILE dense = Record(graph);
    EXPECT_LT(::GetEnhMetaFileBits(dense, 0, nullptr), 200000u);
    ::DeleteEnhMetaFile(dense);
    graph.DestroyWindow();
}
