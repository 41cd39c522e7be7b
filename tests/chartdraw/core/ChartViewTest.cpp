// SPDX-License-Identifier: MIT
// The view of a chart against a plain model, and the exactness of panning.
#include "chartdraw/core/ChartView.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

using namespace kavlix;

namespace {

using Real = long double;
constexpr ChartAxis kAxes[] = {ChartAxis::X, ChartAxis::Y, ChartAxis::Y2};

/// One axis as a reader of the rules would write it. Ranges are values, or logarithms.
struct ModelAxis {
    bool isLogarithmic = false, isMoved = false;
    Real homeMin = 0, homeMax = 1, dataMin = 0, dataMax = -1, min = 0, max = 1;

    Real Scaled(double value) const { return isLogarithmic ? std::log10(Real(value)) : Real(value); }
    Real Low() const { return isMoved ? min : homeMin; }
    Real High() const { return isMoved ? max : homeMax; }
    Real Narrowest(Real size) const { return isLogarithmic ? 1e-9L : std::max(size * 2e-12L, 2e-290L); }
    bool HasData() const { return dataMin <= dataMax; }
    void Show(Real newMin, Real newMax) {
        isMoved = true;
        min = newMin;
        max = newMax;
    }
    /// Shows a range of `width` from `from` on, inside the data and the home range with half their width around.
    void ShowInReach(Real from, Real width) {
        const Real low = HasData() ? std::min(homeMin, dataMin) : homeMin;
        const Real high = HasData() ? std::max(homeMax, dataMax) : homeMax;
        const Real room = (high - low) / 2;
        const Real first = std::min(low - room, Low()), last = std::max(high + room, High());
        width = std::min(width, last - first);
        if (const Real least = Narrowest(std::max(std::abs(from), std::abs(from + width)));
            width < least * 0.75L) {
            from -= (least - width) / 2;
            width = least;
        }
        from = std::max(first, std::min(from, last - width));
        if (from != Low() || from + width != High())
            Show(from, from + width);
    }
    void Zoom(Real share, Real factor) {
        const Real at = Low() + share * (High() - Low());
        const Real least = std::min(Narrowest(std::abs(at)), High() - Low());
        Real width = std::max((High() - Low()) * factor, least);
        const Real low = HasData() ? std::min(homeMin, dataMin) : homeMin;
        const Real high = HasData() ? std::max(homeMax, dataMax) : homeMax;
        const Real room = (high - low) / 2;
        width = std::min(width, std::max(high + room, High()) - std::min(low - room, Low()));
        ShowInReach(at - share * width, width);
    }
    void Pan(Real share) { ShowInReach(Low() + share * (High() - Low()), High() - Low()); }
    /// Whether both show the same range but for rounding.
    bool IsAt(const ModelAxis& other) const {
        const Real tolerance =
            1e-9L * (High() - Low()) + 1e-15L * std::max(std::abs(Low()), std::abs(High()));
        return std::abs(Low() - other.Low()) + std::abs(High() - other.High()) <= tolerance;
    }
    bool Shows(Real value) const { return Low() <= value && value <= High(); }
};

struct Model {
    struct Entry {
        ModelAxis axes[3];
        bool isFollowing;
    };
    ModelAxis axes[3];
    bool isFollowMode = false, isFollowing = true;
    std::vector<Entry> history;

    ModelAxis& X() { return axes[0]; }
    Entry Now() const { return {{axes[0], axes[1], axes[2]}, isFollowing}; }
    bool IsNewestVisible() { return !X().HasData() || X().Shows(X().dataMax); }
    void CatchUp() {
        ModelAxis& x = X();
        if (isFollowMode && isFollowing && x.isMoved && x.HasData()) {
            const Real width = x.High() - x.Low();
            const bool isFar = !x.Shows(x.dataMax);
            Real from = x.Low();
            if (isFar || x.dataMax > from + width * 0.900000001L)
                from = x.dataMax - width * 0.9L;
            if (isFar && x.dataMin > from)
                from = x.dataMin;
            x.Show(from, from + width);
        }
        isFollowing = !X().isMoved || IsNewestVisible();
    }
    void Restore(const Entry& entry) {
        for (int i = 0; i < 3; ++i) {
            axes[i].isMoved = entry.axes[i].isMoved;
            axes[i].min = entry.axes[i].min;
            axes[i].max = entry.axes[i].max;
        }
        isFollowing = entry.isFollowing;
        CatchUp();
    }
};

/// Random events for the view and for the model.
class RandomView {
public:
    explicit RandomView(unsigned seed) : m_random(seed) {
        m_view.SetLogarithmic(ChartAxis::Y2, true);
        m_model.axes[2].isLogarithmic = true;
        const double origin = seed % 3 == 0 ? 1.7e9 : 0;
        Home(ChartAxis::X, origin, origin + 60);
        Home(ChartAxis::Y, -5, 20);
        Home(ChartAxis::Y2, 1e-3, 1e4);
        m_data.Add(origin);
    }

    void Step() {
        m_time += Below(10) == 0 ? 700 : 40;
        switch (Below(13)) {
        case 0:
        case 1:
            return Gesture(GestureKind::Wheel, [&] { Zoom(std::pow(0.8, (Share() - 0.5) * 20)); });
        case 2:
            return Gesture(GestureKind::Key,
                           [&] { Pan(Share() * 2 - 1, Below(2) == 0 ? 0 : Share() - 0.5); });
        case 3:
            return Drag();
        case 4:
            return Gesture(GestureKind::Drag, [&] { Box(); });
        case 5:
            return Gesture(GestureKind::Command, [&] { GoTo(Below(2) == 0); });
        case 6:
            return Gesture(GestureKind::Command, [&] { Fit(); });
        case 7:
            return Back();
        case 8:
            return Restart();
        case 9:
            return Mode();
        case 10:
            return HostRange();
        default:
            return NewData();
        }
    }
    void Check() {
        for (const ChartAxis axis : kAxes) {
            const ViewRange range = m_view.Axis(axis).Range();
            ModelAxis& model = m_model.axes[static_cast<int>(axis)];
            const Real min = model.Scaled(range.min), max = model.Scaled(range.max);
            const Real size = std::max(std::abs(min), std::abs(max));
            const Real tolerance = (max - min) * 1e-9L + size * 1e-15L;
            ASSERT_NEAR(static_cast<double>(min - model.Low()), 0, static_cast<double>(tolerance));
            ASSERT_NEAR(static_cast<double>(max - model.High()), 0, static_cast<double>(tolerance));
            ASSERT_EQ(m_view.Axis(axis).IsMoved(), model.isMoved);
            if (model.isMoved)
                model.Show(min, max); // rounding errors must not add up
        }
        ASSERT_EQ(m_view.CanGoBack(), !m_model.history.empty());
    }

private:
    int Below(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }
    double Share() { return m_random() / 4294967296.0; }
    void Home(ChartAxis axis, double min, double max) {
        m_view.SetHome(axis, {min, max});
        ModelAxis& model = m_model.axes[static_cast<int>(axis)];
        model.homeMin = model.Scaled(min);
        model.homeMax = model.Scaled(max);
    }
    template <class Act> void Gesture(GestureKind kind, Act act) {
        const Model::Entry before = m_model.Now();
        m_view.Begin(kind, m_time);
        act();
        m_view.End();
        bool isChanged = false;
        for (int i = 0; i < 3; ++i) {
            const ModelAxis &was = before.axes[i], &is = m_model.axes[i];
            isChanged |= was.isMoved != is.isMoved || !was.IsAt(is);
        }
        const bool isRun = m_canRun && kind == m_kind && m_time - m_runTime <= 500 &&
                           (kind == GestureKind::Wheel || kind == GestureKind::Key);
        if (isChanged && !isRun)
            m_model.history.push_back(before);
        if (m_model.history.size() > 64)
            m_model.history.erase(m_model.history.begin());
        m_canRun = isChanged || isRun;
        m_kind = kind;
        m_runTime = m_time;
        if (!m_model.X().IsAt(before.axes[0]))
            m_model.isFollowing = !m_model.X().isMoved || m_model.IsNewestVisible();
        if (m_isDataNew)
            m_model.CatchUp();
        m_isDataNew = false;
    }
    void Zoom(double factor) {
        const double x = Share(), y = Share();
        const AxisSet axes = 1 + static_cast<AxisSet>(Below(7));
        m_view.Zoom(axes, x, y, factor);
        for (int i = 0; i < 3; ++i)
            if ((axes >> i & 1) != 0)
                m_model.axes[i].Zoom(i == 0 ? x : y, factor);
    }
    void Pan(double x, double y) {
        m_view.Pan(x, y);
        for (int i = 0; i < 3; ++i)
            if ((i == 0 ? x : y) != 0)
                m_model.axes[i].Pan(i == 0 ? x : y);
    }
    void Drag() {
        bool isCancelled = false;
        const Model::Entry begin = m_model.Now();
        Gesture(GestureKind::Drag, [&] {
            for (int i = Below(4); i >= 0; --i) {
                const double x = Below(4) == 0 ? 0 : Share() * 2 - 1, y = Below(2) == 0 ? 0 : Share() - 0.5;
                m_view.PanFromBegin(x, y);
                // The home range may have grown since, but the pan begins at the range that was visible then.
                for (int axis = 0; axis < 3; ++axis) {
                    ModelAxis& model = m_model.axes[axis];
                    const ModelAxis& was = begin.axes[axis];
                    const double share = axis == 0 ? x : y;
                    model.isMoved = share != 0 || was.isMoved;
                    model.min = was.Low();
                    model.max = was.High();
                    if (share != 0)
                        model.Pan(share);
                }
                if (Below(3) == 0)
                    AddData();
            }
            isCancelled = Below(4) == 0;
            if (isCancelled) {
                m_view.Cancel();
                m_isDataNew = false;
                m_model.Restore(begin);
            }
        });
        m_canRun = m_canRun && !isCancelled;
    }
    void Box() {
        ViewBox box;
        box.axes = 1 + static_cast<AxisSet>(Below(7));
        box.left = Share() * 0.9;
        box.right = box.left + 0.01 + Share() * (0.99 - box.left);
        box.low = Share() * 0.9;
        box.high = box.low + 0.01 + Share() * (0.99 - box.low);
        m_view.ZoomTo(box);
        for (int i = 0; i < 3; ++i) {
            ModelAxis& model = m_model.axes[i];
            const Real width = model.High() - model.Low();
            const double from = i == 0 ? box.left : box.low, to = i == 0 ? box.right : box.high;
            if ((box.axes >> i & 1) != 0)
                model.ShowInReach(model.Low() + from * width, (to - from) * width);
        }
    }
    void GoTo(bool first) {
        first ? m_view.GoToFirst() : m_view.GoToNewest();
        ModelAxis& x = m_model.X();
        if (!x.HasData() || (x.Shows(x.dataMin) && x.Shows(x.dataMax)))
            return;
        const Real width = x.High() - x.Low();
        const Real from = first ? x.dataMin : x.dataMax - width * (m_model.isFollowMode ? 0.9L : 1);
        x.Show(from, from + width);
    }
    void Fit() {
        m_view.Fit(kAllAxes);
        for (ModelAxis& axis : m_model.axes)
            axis.isMoved = false;
    }
    void Back() {
        m_view.Back();
        m_canRun = false;
        for (bool isChanged = false; !isChanged && !m_model.history.empty();) {
            const Model::Entry before = m_model.Now();
            m_model.Restore(m_model.history.back());
            m_model.history.pop_back();
            for (int i = 0; i < 3; ++i)
                isChanged |= !before.axes[i].IsAt(m_model.axes[i]);
        }
    }
    void AddData() {
        m_data.Add(m_data.max + Share() * 5);
        m_view.SetData(ChartAxis::X, m_data);
        m_model.X().dataMin = m_data.min;
        m_model.X().dataMax = m_data.max;
        m_isDataNew = true;
    }
    void NewData() {
        AddData();
        m_model.CatchUp();
        m_isDataNew = false;
        if (Below(4) == 0)
            Home(ChartAxis::X, m_data.min - 1, m_data.max + 1);
    }
    void Restart() {
        const double first = m_data.min + (Share() - 0.5) * 1000;
        if (Below(10) != 0)
            return;
        m_data = ValueBounds();
        m_data.Add(first);
        NewData();
    }
    void Mode() {
        if (Below(4) != 0)
            return;
        m_model.isFollowMode = Below(2) == 0;
        m_view.SetMode(ChartAxis::X, m_model.isFollowMode ? ScaleMode::Follow : ScaleMode::Whole);
        ModelAxis& x = m_model.X();
        const bool hasRange = x.isMoved || x.HasData();
        x.Show(x.Low(), x.High());
        x.isMoved = m_model.isFollowMode && hasRange;
        if (m_model.isFollowMode) {
            m_model.isFollowing = true;
            m_model.CatchUp();
        }
    }
    void HostRange() {
        const double min = m_data.min + (Share() - 0.5) * 100, max = min + 0.1 + Share() * 50;
        m_view.SetRange(ChartAxis::X, {min, max});
        m_model.X().Show(min, max);
        m_model.isFollowing = !m_model.X().isMoved || m_model.IsNewestVisible();
    }

    std::mt19937 m_random;
    ChartView m_view;
    Model m_model;
    ValueBounds m_data;
    std::uint32_t m_time = 0xffffff00; // wraps soon
    std::uint32_t m_runTime = 0;
    GestureKind m_kind = GestureKind::Command;
    bool m_canRun = false;
    bool m_isDataNew = false;
};

} // namespace

TEST(ChartView, MovesAsThePlainModel) {
    for (unsigned seed = 0; seed < 50; ++seed) {
        RandomView view(seed);
        for (int i = 0; i < 2000; ++i) {
            view.Step();
            view.Check();
            if (testing::Test::HasFatalFailure())
                FAIL() << "seed " << seed << ", event " << i;
        }
    }
}

TEST(ChartView, PansWithoutDrift) {
    std::mt19937 random(3);
    for (int round = 0; round < 2000; ++round) {
        const double origin =
            round % 2 == 0 ? 1.7e9 : std::ldexp(random() - 2e9, -static_cast<int>(random() % 60));
        const double width = std::pow(10, static_cast<double>(random() % 900) / 100 - 3);
        const int pixels = 100 + static_cast<int>(random() % 3000), steps = static_cast<int>(random() % 5000);
        ViewAxis once;
        once.SetData({origin - 1e9, origin + 1e9});
        once.Set({origin, origin + width});
        const double exactWidth = once.Save().span.width;
        ViewAxis often = once;
        once.Pan(static_cast<double>(steps) / pixels);
        for (int i = 0; i < steps; ++i)
            often.Pan(1.0 / pixels);
        const ViewRange a = once.Range(), b = often.Range();
        const double tolerance = std::abs(a.max) * 5e-16 + exactWidth * steps * 1e-15;
        ASSERT_NEAR(a.min, b.min, tolerance) << "round " << round;
        ASSERT_NEAR(a.max, b.max, tolerance) << "round " << round;
        ASSERT_EQ(often.Save().span.width, exactWidth) << "round " << round;
    }
}

TEST(ChartView, StaysShowableWhateverComes) {
    std::mt19937 random(4);
    constexpr double kInfinite = std::numeric_limits<double>::infinity();
    const auto number = [&]() -> double {
        const double special[] = {0, NAN, kInfinite, -kInfinite, 1e308, -1e308, 5e-324, 1, 0.5, -1, 1.7e9};
        if (random() % 3 == 0)
            return special[random() % 11];
        return (random() % 2 == 0 ? 1 : -1) * std::pow(10, static_cast<double>(random() % 6400) / 10 - 320);
    };
    ChartView view;
    for (int i = 0; i < 100000; ++i) {
        const auto axis = kAxes[random() % 3];
        const AxisSet axes = random() % 8;
        switch (random() % 13) {
        case 0:
            view.Zoom(axes, number(), number(), number());
            break;
        case 1:
            view.Pan(number(), number());
            break;
        case 2:
            view.PanFromBegin(number(), number());
            break;
        case 3:
            view.ZoomTo({axes, number(), number(), number(), number()});
            break;
        case 4:
            view.SetRange(axis, {number(), number()});
            break;
        case 5:
            view.SetHome(axis, {number(), number()});
            break;
        case 6:
            view.SetData(axis, {number(), number()});
            break;
        case 7:
            random() % 2 == 0 ? view.GoToFirst() : view.GoToNewest();
            break;
        case 8:
            random() % 9 == 0 ? view.Fit(axes) : view.Back();
            break;
        case 9:
            view.SetMode(axis, static_cast<ScaleMode>(random() % 3));
            break;
        case 10:
            random() % 20 == 0 && view.SetLogarithmic(axis, random() % 2 == 0);
            break;
        case 11:
            view.Begin(static_cast<GestureKind>(random() % 4), random() % 4000);
            break;
        default:
            random() % 3 == 0 ? view.Cancel() : (view.End(), true);
            break;
        }
        for (const ChartAxis each : kAxes) {
            const ViewAxis& shown = view.Axis(each);
            const ViewRange range = shown.Range();
            const double size = std::max(std::abs(range.min), std::abs(range.max));
            ASSERT_TRUE(size <= 1.0001e300) << i; // NaN and infinity too
            ASSERT_LT(range.min, range.max) << i;
            const bool isWide = shown.IsLogarithmic()
                                    ? range.min >= 0.9999e-300 && range.max / range.min > 1 + 1e-9
                                    : range.max - range.min >= 1.4e-12 * size;
            ASSERT_TRUE(isWide) << i << ": " << range.min << " to " << range.max;
        }
    }
}
