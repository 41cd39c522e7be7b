// SPDX-License-Identifier: MIT
// The axes of a chart: texts, zones, maps, and labels that neither touch nor are cut off.
#include "tests/chartdraw/ChartTest.h"

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <string>

#include "tests/support/Numbers.h"

namespace {

constexpr double kNight = 1792886400; // 2026-10-25 00:00 UTC; in Berlin the clock goes back an hour later
constexpr double kDay = 86400;

/// While it lives, charts that are new to time axes find a German user, or one in the USA.
class UserFormats {
public:
    explicit UserFormats(bool isGerman)
        : m_hook("Kavlix.dll", "GetLocaleInfoW", reinterpret_cast<void*>(&UserFormats::Answer)) {
        s_isGerman = isGerman;
    }

private:
    static int WINAPI Answer(LCID, LCTYPE type, LPWSTR text, int size) {
        constexpr LCTYPE kMonthDay = 0x78;
        std::wstring answer;
        if (type == LOCALE_SLONGDATE)
            answer = s_isGerman ? L"dddd, d. MMMM yyyy" : L"dddd, MMMM d, yyyy";
        else if (type == kMonthDay)
            answer = s_isGerman ? L"d. MMMM" : L"MMMM d";
        else if (type == LOCALE_STIMEFORMAT)
            answer = s_isGerman ? L"HH:mm:ss" : L"h:mm:ss tt";
        else if (type == LOCALE_SDECIMAL)
            answer = s_isGerman ? L"," : L".";
        else if (type >= LOCALE_SABBREVMONTHNAME1 && type < LOCALE_SABBREVMONTHNAME1 + 12)
            answer = std::wstring(s_isGerman ? L"JanFebMrzAprMaiJunJulAugSepOktNovDez"
                                             : L"JanFebMarAprMayJunJulAugSepOctNovDec")
                         .substr((type - LOCALE_SABBREVMONTHNAME1) * 3, 3);
        else
            return 0;
        std::wcsncpy(text, answer.c_str(), static_cast<std::size_t>(size));
        return static_cast<int>(answer.size()) + 1;
    }
    static inline bool s_isGerman = true;
    testkit::ImportHook m_hook;
};

CString Braces(double value) {
    CString text;
    text.Format(_T("<%g>"), value);
    return text;
}

} // namespace

class ChartAxisTest : public ChartTest {
protected:
    /// The texts that a drawing member draws, separated by bars.
    std::string Texts(void (OpenChart::*draw)(CDC&)) {
        testkit::MetafileRecorder recorder;
        Record(recorder, [&](CDC& dc) { (chart.*draw)(dc); });
        std::string all;
        for (const std::string& text : recorder.Texts())
            all += (all.empty() ? "" : "|") + text;
        return all;
    }
    std::string XTexts() { return Texts(&OpenChart::DrawXScale); }
    /// The texts of the X axis as a time axis.
    std::string TimeTexts(double from, double to, LPCTSTR zone) {
        chart.GetXAxis().SetKind(CChartAxis::Time);
        EXPECT_TRUE(chart.GetXAxis().SetTimeZone(zone));
        EXPECT_TRUE(chart.GetXAxis().SetRange(from, to));
        return XTexts();
    }
    /// The rectangles of the texts that the whole chart draws.
    std::vector<CRect> TextBoxes() {
        testkit::MetafileRecorder recorder;
        Record(recorder, [&](CDC& dc) { chart.DrawChart(dc); });
        std::vector<CRect> boxes;
        CClientDC dc(&chart);
        for (const testkit::MetafileRecord& record : recorder.Records()) {
            if (record.kind != testkit::kText || record.text.empty())
                continue;
            const bool isTitle = record.state.font.find("bold") != std::string::npos;
            const bool isUpwards = record.state.font.find('@') != std::string::npos;
            CFont font;
            font.CreatePointFont(90, _T("Arial"), &dc);
            LOGFONT form = {};
            font.GetLogFont(&form);
            if (isTitle) {
                form.lfHeight = form.lfHeight * 4 / 3;
                form.lfWeight = FW_BOLD;
            }
            CFont used;
            used.CreateFontIndirect(&form);
            CFont* before = dc.SelectObject(&used);
            std::wstring text(record.text.size(), L'\0');
            text.resize(static_cast<std::size_t>(::MultiByteToWideChar(
                sizeof(TCHAR) == sizeof(WCHAR) ? CP_UTF8 : CP_ACP, 0, record.text.data(),
                static_cast<int>(record.text.size()), &text[0], static_cast<int>(text.size()))));
            CSize size;
            ::GetTextExtentPoint32W(dc.GetSafeHdc(), text.data(), static_cast<int>(text.size()), &size);
            dc.SelectObject(before);
            const UINT across = record.state.textAlign & TA_CENTER;
            CPoint corner = record.points[0];
            if (isUpwards)
                corner = CPoint(corner.x, corner.y - size.cx / 2), std::swap(size.cx, size.cy);
            else if (across != TA_LEFT)
                corner.x -= across == TA_CENTER ? size.cx / 2 : size.cx;
            boxes.emplace_back(corner, size);
        }
        return boxes;
    }
};

TEST_F(ChartAxisTest, LabelsOfAnyAxesNeitherTouchNorAreCutOff) {
    testkit::Numbers random(9);
    for (const TCHAR* name : {_T("First"), _T("The second one")}) {
        const int dataset = Add({-1, 0, 3, 7});
        chart.SetDatasetName(dataset, name);
    }
    for (int round = 0; round < 250; ++round) {
        for (CChartAxis* axis : {&chart.GetXAxis(), &chart.GetYAxis(), &chart.GetY2Axis()}) {
            axis->SetKind(static_cast<CChartAxis::Kind>(random.Below(3)));
            axis->SetInverted(random.OneIn(3));
            axis->SetEngineering(random.OneIn(3));
            axis->SetDecimals(random.Below(5) - 2);
            axis->SetUnit(random.OneIn(2) ? _T("mV") : _T(""));
            axis->SetTitle(random.OneIn(2) ? _T("Caption") : _T(""));
            axis->SetLabelFunction(random.OneIn(6) ? CChartAxis::LabelFunction(Braces) : nullptr);
            axis->SetRangeMode(CChartAxis::WholeData);
            const double from = axis->GetKind() == CChartAxis::Time
                                    ? kNight - random.Below(40000) * 1e4
                                    : std::pow(10.0, random.Below(12) - 6) * (1 + random.Below(1000));
            const double width =
                std::pow(10.0, random.Below(15) - 5) * (axis->GetKind() == CChartAxis::Time ? 1 : from);
            if (!random.OneIn(4))
                axis->SetRange(from, from + width);
        }
        chart.GetY2Axis().SetAlwaysShown(random.OneIn(2));
        const CChartLegend::Place places[] = {CChartLegend::Hidden, CChartLegend::Right,
                                              CChartLegend::Bottom};
        chart.GetLegend().SetPlace(places[random.Below(3)]);
        chart.SetTitle(random.OneIn(2) ? _T("Title") : _T(""));
        Resize(60 + random.Below(900), 40 + random.Below(500));
        const std::vector<CRect> boxes = TextBoxes();
        for (std::size_t i = 0; i < boxes.size(); ++i) {
            const CRect& box = boxes[i];
            ASSERT_TRUE(box.left >= 0 && box.top >= 0 && box.right <= chart.m_rectChart.right + 1 &&
                        box.bottom <= chart.m_rectChart.bottom)
                << "round " << round << ": " << testkit::BoxText(box);
            for (std::size_t k = 0; k < i; ++k) {
                CRect common = box;
                common.DeflateRect(1, 1); // centred texts are rounded to pixels
                ASSERT_FALSE(common.IntersectRect(common, boxes[k]))
                    << "round " << round << ": " << testkit::BoxText(box) << " and "
                    << testkit::BoxText(boxes[k]);
            }
        }
    }
}

TEST_F(ChartAxisTest, PositionsAndValuesAreInverse) {
    Resize(500, 400);
    for (const auto kind : {CChartAxis::Linear, CChartAxis::Logarithmic, CChartAxis::Time})
        for (const bool isInverted : {false, true})
            for (CChartAxis* axis : {&chart.GetXAxis(), &chart.GetYAxis(), &chart.GetY2Axis()}) {
                axis->SetKind(kind);
                axis->SetInverted(isInverted);
                chart.GetY2Axis().SetAlwaysShown(TRUE);
                ASSERT_TRUE(axis->SetRange(2, 2000));
                chart.CalcDatas();
                int low = 0, high = 0, at = 0;
                ASSERT_TRUE(axis->GetPosition(2, low) && axis->GetPosition(2000, high));
                const bool isX = axis == &chart.GetXAxis();
                EXPECT_EQ(std::min(low, high), isX ? chart.m_rectPlot.left : chart.m_rectPlot.top);
                EXPECT_EQ(std::max(low, high), (isX ? chart.m_rectPlot.right : chart.m_rectPlot.bottom) - 1);
                EXPECT_EQ(low < high, isX != isInverted);
                for (int pixel = std::min(low, high); pixel <= std::max(low, high); pixel += 7) {
                    ASSERT_TRUE(axis->GetPosition(axis->GetValue(pixel), at));
                    ASSERT_NEAR(at, pixel, 1);
                }
                EXPECT_EQ(axis->GetPosition(0, at), kind != CChartAxis::Logarithmic);
            }
}

TEST_F(ChartAxisTest, NumbersAreShownAsTheHostAsks) {
    chart.SetYScale(0, 0.002, 0.001);
    CChartAxis& axis = chart.GetYAxis();
    const auto texts = [&] { return Texts(&OpenChart::DrawYScale); };
    EXPECT_EQ(texts(), "0.000|0.001|0.002");
    axis.SetDecimals(1);
    EXPECT_EQ(texts(), "0.0|0.0|0.0");
    axis.SetDecimals(-1);
    axis.SetUnit(_T("V"));
    axis.SetEngineering(TRUE);
    EXPECT_EQ(texts(), "0 mV|1 mV|2 mV");
    EXPECT_EQ(Texts(&OpenChart::DrawAxes), "[V]");
    axis.SetLabelFunction(Braces);
    EXPECT_EQ(texts(), "<0>|<0.001>|<0.002>");
    axis.SetLabelFunction(nullptr);
    axis.SetKind(CChartAxis::Logarithmic);
    ASSERT_TRUE(axis.SetRange(1, 1000));
    EXPECT_EQ(texts(), "1 V|10 V|100 V|1 kV");
}

TEST_F(ChartAxisTest, TimesFollowTheUsersFormats) {
    Resize(600, 200);
    // The step depends on the font: these texts are there with any of two or three steps.
    const auto expect = [&](const std::string& texts, const Strings& wanted) {
        for (const std::string& text : wanted)
            EXPECT_NE(("|" + texts + "|").find("|" + text + "|"), std::string::npos)
                << text << " in " << texts;
    };
    {
        const UserFormats german(true);
        expect(TimeTexts(kNight, kNight + 3600 * 4, _T("W. Europe Standard Time")),
               {"02:00", "02:00 (2)", "03:00", "04:00", "25. Okt 2026"});
        expect(TimeTexts(kNight, kNight + 0.005, _T("UTC")),
               {"00:00:00,002", "00:00:00,004", "25. Okt 2026"});
        chart.GetXAxis().SetOrigin(kNight + 30);
        expect(TimeTexts(0, 4e-6, _T("UTC")), {"30,000002", "25. Okt 2026 00:00:30"});
        chart.GetXAxis().SetOrigin(0);
        expect(TimeTexts(kNight, kNight + 2.5 * kDay, _T("UTC")),
               {"00:00", "12:00", "25. Okt 2026", "26. Okt 2026", "27. Okt 2026"});
        expect(TimeTexts(kNight, kNight + 9 * kDay, _T("UTC")), {"26. Okt", "1. Nov", "2026"});
        expect(TimeTexts(kNight, kNight + 300 * kDay, _T("UTC")), {"Jan", "Apr", "Jul", "2027"});
        expect(TimeTexts(-2.2e9, 4.1e9, _T("UTC")), {"1920", "1940", "2080"});
    }
    // A chart asks for the formats once.
    chart.DestroyWindow();
    OpenChart other;
    ASSERT_TRUE(other.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 600, 200), &parent, 6));
    const UserFormats american(false);
    other.GetXAxis().SetKind(CChartAxis::Time);
    ASSERT_TRUE(other.GetXAxis().SetTimeZone(_T("Eastern Standard Time")));
    const struct {
        double start;
        Strings texts;
    } views[] = {{kNight, {"8 PM", "12 AM", "Oct 25, 2026", "Oct 24, 2026"}},
                 {1142856000, {"7 AM", "Mar 20, 2006"}},  // 12:00 UTC, daylight saving began in April
                 {1900238400, {"8 AM", "Mar 20, 2030"}}}; // 12:00 UTC, it began in March
    for (const auto& view : views) {
        ASSERT_TRUE(other.GetXAxis().SetRange(view.start - 600, view.start + 5 * 3600));
        other.CalcDatas();
        testkit::MetafileRecorder recorder;
        CDC dc;
        dc.Attach(recorder.Dc());
        other.DrawXScale(dc);
        dc.Detach();
        recorder.Close();
        std::string all;
        for (const std::string& text : recorder.Texts())
            all += text + "|";
        expect(all, view.texts);
        EXPECT_EQ(recorder.Texts()[0], view.texts[0]) << "the first hour";
    }
}

TEST_F(ChartAxisTest, AnUnknownZoneChangesNothing) {
    const UserFormats german(true);
    Resize(400, 200);
    const std::string before = TimeTexts(kNight, kNight + kDay, _T("Tokyo Standard Time"));
    for (const TCHAR* name : {_T("Nowhere"), _T("Tokyo Standard Time\\Dynamic DST"), _T("..")})
        EXPECT_FALSE(chart.GetXAxis().SetTimeZone(name));
    EXPECT_EQ(XTexts(), before);
    EXPECT_NE(TimeTexts(kNight, kNight + kDay, _T("utc")), before);
}

TEST_F(ChartAxisTest, TheSecondYAxisTakesRoomOnlyWhenItIsShown) {
    const int dataset = Add({1, 2, 3});
    chart.CalcDatas();
    const CRect plot = chart.m_rectPlot;
    chart.GetY2Axis().SetKind(CChartAxis::Logarithmic);
    chart.GetY2Axis().SetTitle(_T("Right"));
    chart.CalcDatas();
    EXPECT_EQ(chart.m_rectPlot, plot);
    chart.UseSecondYAxis(dataset, TRUE);
    chart.CalcDatas();
    EXPECT_LT(chart.m_rectPlot.right, plot.right);
    chart.ShowDataset(dataset, FALSE);
    chart.CalcDatas();
    EXPECT_EQ(chart.m_rectPlot.right, plot.right);
    chart.GetY2Axis().SetAlwaysShown(TRUE);
    chart.CalcDatas();
    EXPECT_LT(chart.m_rectPlot.right, plot.right);
}

TEST_F(ChartAxisTest, LogarithmicAxesTellWhatTheyCannotShow) {
    Resize(900, 500);
    const auto note = [&] {
        const std::string texts = Texts(&OpenChart::DrawYScale);
        const std::size_t at = texts.find("not shown");
        return at == std::string::npos ? "" : texts.substr(texts.rfind('|', at) + 1);
    };
    const int dataset = Add({0.5, 0, 300, std::nan(""), 20});
    chart.CalcDatas();
    const int top = chart.m_rectPlot.top;
    chart.GetYAxis().SetKind(CChartAxis::Logarithmic);
    EXPECT_EQ(note(), "1 value of 0 or less is not shown");
    EXPECT_GT(chart.m_rectPlot.top, top) << "the note has room of its own";
    double min = 0, max = 0, step = 1;
    chart.GetYScale(min, max, step);
    EXPECT_EQ(Strings({std::to_string(min), std::to_string(max), std::to_string(step)}),
              Strings({"0.500000", "500.000000", "0.000000"}));
    chart.GetXAxis().SetKind(CChartAxis::Logarithmic);
    EXPECT_EQ(note(), "2 values of 0 or less are not shown") << "the index 0";
    chart.AddData(dataset, -7, -1); // the x do not ascend any more
    EXPECT_EQ(note(), "4 values of 0 or less are not shown");
    chart.UseSecondYAxis(dataset, TRUE);
    EXPECT_EQ(note(), "2 values of 0 or less are not shown") << "of X";
    chart.ShowDataset(dataset, FALSE);
    EXPECT_EQ(note(), "");
}
