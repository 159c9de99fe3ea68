#ifndef WHOLE_NUMBER_SCALE_H
#define WHOLE_NUMBER_SCALE_H

#include <qwt_scale_engine.h>

/// Divides an axis at whole numbers only, at all of them or at every 2nd, 5th, 10th and so on, so
/// that no more labels stand there than the axis was allowed. Limits stay as they are given.
class whole_number_scale : public QwtLinearScaleEngine
{
public:
    QwtScaleDiv divideScale(double from,
                            double to,
                            int most_labels,
                            int most_between,
                            double step = 0.0) const override;
};

#endif // WHOLE_NUMBER_SCALE_H
