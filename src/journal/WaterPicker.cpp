#include "journal/WaterPicker.h"

#include "journal/WaterVals.h"

namespace kesto
{

namespace
{

constexpr int waterShade = 7; // blue, as of the category of fish

} // namespace

WaterPicker::WaterPicker(Mode mode, QObject *parent)
    : QObject(parent)
    , mode_(mode)
{
    for (int key = 1; key <= waterPortionCount; ++key)
        buttons_.add(key, {.image = waterPortionImage(key),
                           .name = waterPortionName(key),
                           .shade = waterShade,
                           .choosable = selects()});
    reloadTitles();
}

void WaterPicker::setSelected(int key)
{
    selected_ = buttons_.withTag(key) != nullptr ? key : 0;
    for (JornalButton *button : buttons_.all())
        button->setSelected(selects() && button->tag() == selected_);
}

void WaterPicker::reloadTitles()
{
    const QVariantMap portions = waterValsDict();
    for (JornalButton *button : buttons_.all()) {
        JornalButton::Look look = button->look();
        look.title = waterPortionTitle(waterVolume(portions, button->tag()));
        button->setLook(look);
    }
}

void WaterPicker::touch(int tag)
{
    if (buttons_.withTag(tag) == nullptr)
        return;
    setSelected(selects() && selected_ == tag ? 0 : tag);
    Q_EMIT valueChanged();
}

} // namespace kesto
