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

    // To build them all at once would keep the window from answering for two frames. Builds the
    // next one or two; false when all stand, before which nobody may look into them.
    bool buildNext();

    std::unique_ptr<Ui::colorMadnessPanel> colorMadness;
    // Its tabs of what a key wears.
    std::unique_ptr<Ui::lookPage> keys, keypress, mouseover, highlight;
    std::unique_ptr<Ui::kestrixKeyboardPanel> kestrixKeyboard;
    std::unique_ptr<Ui::fontsPanel> fonts;
    std::unique_ptr<Ui::picturesPanel> pictures;
    std::unique_ptr<Ui::shadowsPanel> shadows;
    std::unique_ptr<Ui::audioPanel> audio;
    std::unique_ptr<Ui::gamePlayPanel> gamePlay;
    std::unique_ptr<Ui::lineHighlightPanel> lines;

private:
    QWidget &parent;
    int built = 0; // slices
};
