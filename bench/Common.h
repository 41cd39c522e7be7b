#pragma once

#include <afxwin.h>

#include <string>
#include <vector>

/// What the rows of the benchmark share. A row family is a file of its own with a function that prints its
/// rows; Main.cpp lists them.
namespace bench {

/// Microseconds from a fixed moment on.
double Now();

/// The value that `share` (0 to 1) of the values lie below, 0 when there is none. Reorders them. The median
/// tells what is usual; the tenth, what it costs when nobody else uses the machine.
double Quantile(std::vector<double>& values, double share);
inline constexpr double kMedian = 0.5;
inline constexpr double kTenth = 0.1;

/// What this process holds.
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

/// Handles every message that waits.
void Pump();

/// The families.
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

} // namespace bench
