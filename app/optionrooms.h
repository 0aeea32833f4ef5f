#pragma once

#include "builtinthemes.h"
#include "colorpickers.h"
#include "dresser.h"
#include "effectchoice.h"
#include "gameplaybox.h"
#include "gradientpanels.h"
#include "keyaudio.h"
#include "keyboardtheme.h"
#include "keyfonts.h"
#include "keyimages.h"
#include "mousepaint.h"
#include "optionforms.h"
#include "optionpanels.h"
#include "painttheme.h"
#include "shadows.h"
#include "thumbnails.h"
#include "wallpaper.h"

class FadeEngine;
class Instructor;
class KeyFeedback;
class KeyHover;
class KeyLocatedEffects;
class MatchBoxes;
class NonVitals;
class SoundPlayer;
class TargetHighlights;
class Timers;

// What the rooms of the panels use of the window.
struct OptionNeeds
{
    Furniture &furniture;
    Wardrobe &wardrobe;
    Game &game;
    QWidget &window;
    MouseTable &mouse;
    Timers &timers;
    SoundPlayer &player;
    FileChoice &files;
    KeyFeedback &feedback;
    KeyHover &hover;
    MatchBoxes &boxes;
    Instructor &instructor;
    TargetHighlights &highlights;
    FadeEngine &fades;
    KeyLocatedEffects &bursts;
    NonVitals &vitals;
};

// The panels of the Advanced Options, a room each, and what dresses the window after them. They
// are half of all widgets, and are built as one when they are first needed.
class OptionRooms : public QObject
{
    Q_OBJECT

public:
    // All forms must stand.
    OptionRooms(const OptionNeeds &needs, const OptionForms &builtForms);

    const OptionForms &forms;
    Dresser dresser;
    GradientPanels gradients;
    ColorPickers pickers;
    MousePaint paint;
    KeyFonts fonts;
    Shadows shadows;
    Thumbnails thumbnails;
    KeyAudio audio;
    KeyImages images;
    Wallpaper wallpaper;
    GamePlayBox gamePlay;
    EffectChoice effects;
    OptionPanels panels;
    ThemeFile::Shared themeState;
    PaintTheme paintTheme;
    KeyboardTheme keyboardTheme;
    BuiltInThemes themes;
};
