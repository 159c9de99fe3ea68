#ifndef FULL_VIEW_AREA_H
#define FULL_VIEW_AREA_H

#include <QScrollArea>

/// A scroll area that would like to show its contents whole, however large they are.
class full_view_area : public QScrollArea
{
    Q_OBJECT

public:
    explicit full_view_area(QWidget* parent = nullptr);

    QSize sizeHint() const override;
};

#endif // FULL_VIEW_AREA_H
