#ifndef PAGE_GROUP_H
#define PAGE_GROUP_H

#include <QGroupBox>
#include <QStyle>

class QStyleOptionGroupBox;

/// A group whose frame is a line: some styles draw it with a stretched picture, which blurs on
/// paper and in a drawing.
class page_group : public QGroupBox
{
    Q_OBJECT

public:
    explicit page_group(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRect part_of(const QStyleOptionGroupBox& option, QStyle::SubControl part) const;
};

#endif // PAGE_GROUP_H
