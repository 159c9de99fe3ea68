#ifndef OPTIONS_USER_H
#define OPTIONS_USER_H

#include "desktop_bench.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QSlider>
#include <QSpinBox>

/// The user in the options: opens them by their action, changes something and closes them.
class options_user
{
public:
    using change = std::function<void(QWidget&)>;

    options_user(const desktop_bench& program, box_user& answers)
        : bench(program)
        , user(answers)
    {
    }

    void accept(const change& what) const { close_with(QDialogButtonBox::Ok, what); }
    void cancel(const change& what) const { close_with(QDialogButtonBox::Cancel, what); }

    /// A radio button or a check box.
    static void press(const QWidget& dialog, const char* name)
    {
        child_of<QAbstractButton>(dialog, QString::fromLatin1(name))->click();
    }
    static void set_number(const QWidget& dialog, const char* name, int value)
    {
        child_of<QSpinBox>(dialog, QString::fromLatin1(name))->setValue(value);
    }
    static void set_scale_step(const QWidget& dialog, int step)
    {
        child_of<QSlider>(dialog, QStringLiteral("SL_scr_res_factor"))->setValue(step);
    }
    static void select(const QWidget& dialog, const char* name, const char* entry)
    {
        auto* box = child_of<QComboBox>(dialog, QString::fromLatin1(name));
        const int place = box->findText(QString::fromLatin1(entry));
        if (place < 0) qFatal("no entry \"%s\" in \"%s\"", entry, name);
        box->setCurrentIndex(place);
    }

private:
    void close_with(QDialogButtonBox::StandardButton button, const change& what) const
    {
        user.with_dialog("Options", [&what, button](QWidget* dialog) {
            what(*dialog);
            child_of<QDialogButtonBox>(*dialog, QStringLiteral("buttonBox"))
                ->button(button)
                ->click();
        });
        bench.trigger("actionOptionen");
        bench.settle();
    }

    const desktop_bench& bench;
    box_user& user;
};

#endif // OPTIONS_USER_H
