#include "lookpage.h"

#include "ui_lookpage.h"

#include <array>
#include <initializer_list>
#include <utility>

namespace {

struct Page
{
    const char *title, *caption;
    const char *sample, *upperSample, *lowerSample; // names that follow no rule
    const char *target;                             // in the names of the pair of radio buttons
    const char *picker;                             // in those of the swatches
    // As they are read out.
    const char *character, *ground;
};

constexpr std::array<Page, 4> pages{{
    {"Keys", "How a key looks at rest", "demoLetter1Bg", "demoLetter1_Uppercase",
     "demoLetter1_Lowercase", "Left", "", "%1 Key", "Key"},
    {"Keypress", "How a key looks while it is pressed", "demoLetterCenterBG", "demoLetter1",
     "demoLetter3", "Center", "Kp", "Keypress %1", "Keypress"},
    {"Mouseover", "How a key looks under the mouse", "demoLetterRightBg", "demoLetter1_3",
     "demoLetter3_3", "Right", "Mo", "Mouseover %1", "Mouseover"},
    {"Highlight", "How the key to find looks with Highlight on", "demoLetterHiBg", "demoLetterHiE",
     "demoLetterHiLowD", "Hi", "Hi", "%1 Highlight", "Highlight"},
}};

void name(const QString &word, std::initializer_list<std::pair<QObject *, const char *>> rules)
{
    for (const auto &[object, rule] : rules)
        object->setObjectName(QString(rule).arg(word));
}

void nameWidgets(const Ui::lookPage &form, const Page &page, int number)
{
    name(QString(page.title).toLower(), {{form.previewCard, "%1PreviewCard"},
                                         {form.title, "%1Title"},
                                         {form.caption, "%1Caption"},
                                         {form.colorCard, "%1ColorCard"},
                                         {form.colorTitle, "%1ColorTitle"},
                                         {form.targetNote, "%1TargetNote"},
                                         {form.gradientCard, "%1GradientCard"},
                                         {form.gradientTitle, "%1GradientTitle"},
                                         {form.alphaNote, "%1AlphaNote"},
                                         {form.swapTitle, "%1SwapTitle"},
                                         {form.swapNote, "%1SwapNote"},
                                         {form.stopTitle, "%1StopTitle"},
                                         {form.stopRange, "%1StopRange"},
                                         {form.widthTitle, "%1WidthTitle"},
                                         {form.widthRange, "%1WidthRange"}});
    name(QString(page.ground).toLower(), {{form.targetGroup, "%1TargetGroup"}});
    name(QString::number(number), {{form.shape, "hoSlider%1"},
                                   {form.stop, "slider%1"},
                                   {form.swap, "swapGradient%1"},
                                   {form.width, "sliderBorderWidth%1"},
                                   {form.spin, "spinBox%1"},
                                   {form.gradientPicker, "colorPickerGradBottom%1"},
                                   {form.gradientCaption, "colorPickerGradBottom%1Caption"}});
    const std::pair<QLabel *, QLabel *> shapes[] = {
        {form.shape0, form.shape0Number}, {form.shape1, form.shape1Number},
        {form.shape2, form.shape2Number}, {form.shape3, form.shape3Number},
        {form.shape4, form.shape4Number}, {form.shape5, form.shape5Number},
    };
    int shape = 10 * number;
    for (const auto &[box, numeral] : shapes)
        name(QString::number(shape++), {{box, "grad%1"}, {numeral, "grad%1Number"}});
    name(page.picker, {{form.upperPicker, "colorPicker%1E"},
                       {form.upperCaption, "colorPicker%1ECaption"},
                       {form.lowerPicker, "colorPicker%1D"},
                       {form.lowerCaption, "colorPicker%1DCaption"},
                       {form.mainPicker, "colorPicker%1Bg"},
                       {form.mainCaption, "colorPicker%1BgCaption"}});
    name(page.target, {{form.background, "background%1"}, {form.border, "border%1"}});
    form.sample->setObjectName(page.sample);
    form.upperSample->setObjectName(page.upperSample);
    form.lowerSample->setObjectName(page.lowerSample);
}

void label(const Ui::lookPage &form, const Page &page)
{
    form.title->setText(page.title);
    form.caption->setText(page.caption);
    form.upperPicker->setAccessibleName(QString(page.character).arg("Uppercase"));
    form.lowerPicker->setAccessibleName(QString(page.character).arg("Lowercase"));
    form.mainPicker->setAccessibleName(QString(page.ground) + " Background");
    form.gradientPicker->setAccessibleName(QString(page.ground) + " Background-Gradient");
}

} // namespace

void setUpLookPage(const Ui::lookPage &form, int number)
{
    const Page &page = pages[static_cast<size_t>(number - 1)];
    nameWidgets(form, page, number);
    label(form, page);
}
