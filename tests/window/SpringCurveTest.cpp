#include "window/controls/SpringCurve.h"

#include <gtest/gtest.h>

#include <QEasingCurve>
#include <QPointF>
#include <QVariant>

namespace orlen {

TEST(SpringCurveTest, goesFromRestToTheEndWithAsMuchOvershootAsTheDampingGives)
{
    struct Case {
        const char* name;
        double damping;
        double highest; ///< 1 + e^(-pi z / sqrt(1 - z^2))
    };
    for (const Case& c : {Case{"stiff", 0.85, 1.0063}, {"soft", 0.5, 1.163}}) {
        SCOPED_TRACE(c.name);
        SpringCurve spring;
        spring.setProperty("response", 0.6);
        spring.setProperty("damping", c.damping);
        QList<double> points;
        for (const QVariant& value : spring.curve())
            points << value.toDouble();
        ASSERT_LE(points.size(), 60) << "Qt 6.4 has room for ten segments";
        QEasingCurve curve(QEasingCurve::BezierSpline);
        for (qsizetype at = 0; at + 5 < points.size(); at += 6)
            curve.addCubicBezierSegment({points[at], points[at + 1]}, {points[at + 2], points[at + 3]},
                                        {points[at + 4], points[at + 5]});
        EXPECT_NEAR(curve.valueForProgress(0), 0, 0.001);
        EXPECT_NEAR(curve.valueForProgress(1), 1, 0.001);
        double highest = 0;
        for (int step = 0; step <= 200; ++step)
            highest = std::max(highest, curve.valueForProgress(step / 200.0));
        EXPECT_NEAR(highest, c.highest, 0.006);
        EXPECT_EQ(spring.duration(), 840);
    }
}

} // namespace orlen
