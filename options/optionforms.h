#pragma once

#include <memory>

class QWidget;

namespace Ui {
class audioPanel;
class colorMadnessPanel;
class fontsPanel;
class gamePlayPanel;
class kestrixKeyboardPanel;
class lineHighlightPanel;
class lookPage;
class picturesPanel;
class shadowsPanel;
} // namespace Ui

// The insides of the option panels are forms of their own, which open alone in Designer with
// every piece at its working place. Here they become part of the window: each piece a child of
// the parent, hidden until its panel opens. The parent owns the pieces; the forms tell them by
// name and kind.
class OptionForms
{
public:
    explicit OptionForms(QWidget &parent);
    ~OptionForms();

    const std::unique_ptr<Ui::colorMadnessPanel> colorMadness;
    // Its tabs of what a key wears.
    const std::unique_ptr<Ui::lookPage> keys, keypress, mouseover, highlight;
    const std::unique_ptr<Ui::kestrixKeyboardPanel> kestrixKeyboard;
    const std::unique_ptr<Ui::fontsPanel> fonts;
    const std::unique_ptr<Ui::picturesPanel> pictures;
    const std::unique_ptr<Ui::shadowsPanel> shadows;
    const std::unique_ptr<Ui::audioPanel> audio;
    const std::unique_ptr<Ui::gamePlayPanel> gamePlay;
    const std::unique_ptr<Ui::lineHighlightPanel> lines;
};
