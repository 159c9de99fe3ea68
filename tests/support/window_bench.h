#ifndef WINDOW_BENCH_H
#define WINDOW_BENCH_H

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLocale>
#include <QMenu>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>
#include <QVector>
#include <QWidget>
#include <QtTest>

#include <functional>
#include <memory>

/// Runs one test object with windows in a box of its own: an empty temporary working directory,
/// the C locale and no native dialogs.
template <typename test_object>
int run_window_test(int argc, char** argv)
{
    QLocale::setDefault(QLocale::c());
    const QTemporaryDir box;
    if (!box.isValid() || !QDir::setCurrent(box.path())) return 1;
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    test_object tests;
    const int failures = QTest::qExec(&tests, argc, argv);
    QDir::setCurrent(QDir::rootPath());
    return failures;
}

/// A child by its object name; a name that is missing fails loudly with the names there are.
template <typename widget>
widget* child_of(const QObject& parent, const QString& name)
{
    auto* found = parent.findChild<widget*>(name);
    if (found) return found;
    QStringList names;
    const auto children = parent.findChildren<QObject*>();
    for (const QObject* child : children)
        if (!child->objectName().isEmpty()) names.append(child->objectName());
    names.sort();
    qFatal("no child \"%s\" of the wanted kind among: %s",
           qPrintable(name),
           qPrintable(names.join(QLatin1Char(' '))));
    return nullptr;
}

/// Lets a timer time out once now; one that does not run is left alone. True if it ran.
inline bool fire(QTimer* timer)
{
    if (!timer || !timer->isActive()) return false;
    if (timer->isSingleShot()) timer->stop();
    return QMetaObject::invokeMethod(timer, "timeout", Qt::DirectConnection);
}

/// What a box showed.
struct shown_box {
    QString title;
    QString text;
    QMessageBox::Icon icon;
};

/**
 * The user who answers boxes and dialogs: while it lives every box is recorded and answered as
 * soon as it is on the screen, by the answers that were queued; a box without one is closed as
 * Escape would and counted as unexpected.
 */
class box_user : public QObject
{
public:
    box_user() { qApp->installEventFilter(this); }
    ~box_user() override { qApp->removeEventFilter(this); }

    void answer(QMessageBox::StandardButton button) { answers.append(button); }
    int answers_left() const { return answers.size(); }

    const QVector<shown_box>& boxes() const { return shown; }
    int unexpected() const { return unexpected_boxes; }

    /// Called when a box has come up, before it is answered.
    std::function<void()> looks_at_box;

    void forget()
    {
        shown.clear();
        answers.clear();
        unexpected_boxes = 0;
        looks_at_box = {};
    }

    /// What is done with the next dialog of a class once it is shown.
    void with_dialog(const char* class_name, std::function<void(QWidget*)> what)
    {
        dialogs.append({QByteArray(class_name), std::move(what)});
    }
    int dialogs_left() const { return dialogs.size(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::Show) return false;
        if (auto* box = qobject_cast<QMessageBox*>(watched)) {
            box_shown(*box);
        } else if (auto* widget = qobject_cast<QWidget*>(watched)) {
            widget_shown(*widget);
        }
        return false;
    }

private:
    struct dialog_task {
        QByteArray class_name;
        std::function<void(QWidget*)> what;
    };

    void box_shown(QMessageBox& box)
    {
        shown.append({box.windowTitle(), box.text(), box.icon()});
        QAbstractButton* button = nullptr;
        if (answers.isEmpty()) {
            ++unexpected_boxes;
        } else {
            button = box.button(answers.takeFirst());
        }
        QMetaObject::invokeMethod(
            &box,
            [this, &box, button] {
                if (looks_at_box) looks_at_box();
                if (button) {
                    button->click();
                } else {
                    box.reject();
                }
            },
            Qt::QueuedConnection);
    }

    void widget_shown(QWidget& widget)
    {
        for (int i = 0; i < dialogs.size(); ++i) {
            if (!widget.inherits(dialogs[i].class_name.constData())) continue;
            const auto what = dialogs.takeAt(i).what;
            QMetaObject::invokeMethod(
                &widget, [&widget, what] { what(&widget); }, Qt::QueuedConnection);
            return;
        }
    }

    QVector<QMessageBox::StandardButton> answers;
    QVector<shown_box> shown;
    QVector<dialog_task> dialogs;
    int unexpected_boxes = 0;
};

#endif // WINDOW_BENCH_H
