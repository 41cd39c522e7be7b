#include "tests/graphctrl/GraphTest.h"

using GraphLayoutTest = GraphTest;

TEST_F(GraphLayoutTest, AnIconThatIsNotShownIsNotRepainted) {
    graph.SetTitleStyle(CGraphCtrl::TitleStyleCaption);
    graph.ShowIconMaximize(TRUE, TRUE);
    Record();
    // A repaint of an icon that is not shown any more, as a move of the mouse asks for.
    graph.ShowIconMaximize(FALSE, TRUE);
    Record();
    testkit::MetafileRecorder none;
    CDC dc;
    dc.Attach(none.Dc());
    graph.DrawIconMaximize(dc);
    dc.Detach();
    none.Close();
    EXPECT_EQ(none.Lines(testkit::kDrawing), Strings());
}

TEST_F(GraphLayoutTest, TinyAndHugeWindows) {
    const SIZE sizes[] = {{0, 0}, {1, 1},   {2, 2},     {1, 200},  {300, 1},
                          {5, 5}, {60, 60}, {8000, 30}, {30, 8000}};
    for (const bool caption : {false, true}) {
        graph.SetTitleStyle(caption ? CGraphCtrl::TitleStyleCaption : CGraphCtrl::TitleStyleText);
        graph.ShowIconMaximize(caption, caption);
        graph.ShowBorder(caption);
        for (int style = 0; style < 3; ++style) {
            graph.SetGraphStyle(static_cast<CGraphCtrl::GraphStyle>(style));
            graph.ResetData(0);
            Add(0, {1, 2, 3});
            for (const SIZE& size : sizes) {
                SCOPED_TRACE(std::to_string(size.cx) + " x " + std::to_string(size.cy));
                Resize(size.cx, size.cy);
                graph.Redraw();
                graph.UpdateWindow();
                const auto picture = Record();
                EXPECT_EQ(picture->ObjectFaults(kControlFonts), "");
                EXPECT_EQ(Text(graph.m_rectClient), Text(CRect(0, 0, size.cx, size.cy)));
            }
        }
    }
}
