#include "app/AppPalette.h"

#include <QPalette>
#include <QString>

namespace {

struct Colors
{
    QRgb window;
    QRgb base;
    QRgb button;
    QRgb text;
    QRgb greyed;
};

const Colors s_light = {0xffefefef, 0xffffffff, 0xffefefef, 0xff000000, 0xff8c8c8c};
const Colors s_dark = {0xff31363b, 0xff232629, 0xff3b4045, 0xffeff0f1, 0xff7f8c8d};

QPalette palette(const Colors& colors)
{
    QPalette palette((QColor(colors.button)), QColor(colors.window));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, colors.text);
        palette.setColor(QPalette::Disabled, role, colors.greyed);
    }
    palette.setColor(QPalette::Base, colors.base);
    palette.setColor(QPalette::AlternateBase, colors.window);
    palette.setColor(QPalette::PlaceholderText, colors.greyed);
    palette.setColor(QPalette::Highlight, QColor(0x30, 0x8c, 0xc6));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

} // namespace

QPalette AppPalette::named(const QString& name)
{
    return palette(name == QLatin1String("dark") ? s_dark : s_light);
}
