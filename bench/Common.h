// SPDX-License-Identifier: MIT
// What all rows of the benchmark share: clock, quantiles, output lines, test window, families.
#pragma once

#include <afxwin.h>

#include <string>
#include <vector>

/// A family of rows is a file with a function that prints its rows. Main.cpp lists the families.
namespace bench {

/// The time in microseconds since a fixed moment.
double Now();

/// The value below which `share` (0 to 1) of `values` lie; 0 without values. Changes the order of `values`.
/// The median is the usual time; kTenth gives the time without other load on the machine.
double Quantile(std::vector<double>& values, double share);
inline constexpr double kMedian = 0.5;
inline constexpr double kTenth = 0.1;

/// The resources of this process.
struct Holdings {
    int gdi;     ///< GDI objects
    int user;    ///< windows and menus
    long memory; ///< private memory in KiB
};
Holdings Count();

/// One line of output: a JSON object with its members in the order of the calls.
class Row {
public:
    explicit Row(const std::string& name);
    Row& Add(const std::string& key, double value);
    Row& Add(const std::string& key, int value);
    Row& Add(const std::string& key, const Holdings& holdings);
    void Print() const;

private:
    Row& Member(const std::string& key, const std::string& text);

    std::string m_text;
};

/// A visible top-level window for the controls, with a client area of the given size in pixels.
class Stage : public CWnd {
public:
    Stage(int width, int height);
    ~Stage() override;
};

/// Handles all messages in the queue.
void Pump();

/// The families. Each function prints its rows.
void ScrollReplay();
void ScrollLive();
void GraphPaint(int count);
void GraphCopy(int count);
void GraphWindow();
void GraphFar();
void GraphBars();
void GraphAppend();
void GraphSteady();
void GraphGrowth();
void GraphDay();
void ScrollPaint(int count);
void ScrollWindow();
void ScrollBack();
void ScrollAxis();
void ChartPaint(int count);
void MultiPaint();
void ChartLines(int count);
void ChartRandom(bool markers);
void ChartAppend();
void ChartPost();
void ChartLate();
void ChartWall();
void ChartSave();
void ChartTime(int count);
void ChartPan(int count);
void ChartZoom(int count);
void ChartParts(int count);
void ChartAgainstGraph(int count, bool uneven);
void ChartTenMillion(bool uneven);
void ChartStore();
void ChartStyles();

} // namespace bench
