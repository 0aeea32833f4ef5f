#pragma once

// What the help says about each part of the main window, and which widgets that
// part consists of. The map and the page "Buttons" both read this one table.
struct Topic
{
    const char *heading; // its blanks and spelling are part of the program's texts
    const char *body;    // rich text
    // objectNames in the main window. Each word is a hot spot of its own; names
    // that are joined by "+" make one spot around all of them.
    const char *spots;
};

constexpr Topic topics[] = {
    {"Keypress Color Timer ", "How long the pressed key will hold the down color.",
     "colorTimer+keyConstant keyFlash"},
    {"Hide Non-Vitals ", "Hides and Shows the non-vital parts of the screen for easier playing.",
     "hideNonVitals"},
    {"A Key's Map ",
     "Displays how to access a characer on the keyboard;<br>which other, if any, key is required.",
     "aKeysMap"},
    {"First step in starting the tutorials.",
     "Choose a set of characters and a direction: one of the twelve buttons in the left column."
     "<br>The Alphabet Bar then runs through the characters that are in play.",
     "demo1"},
    {"Second step in starting the tutorials.", "Start and stop buttons", "circleTwo+startGame"},
    {" Third step (optional)", "Select a difficulty setting. Default is soft.",
     "circleThree+startGame_2"},
    {"Fourth step (optional)",
     "Can't find it? Highlight and Lines point at the character to match."
     "<br>Both can be switched while a game is running.",
     "circleFour+startGame_3"},
    {"Keyboard",
     "Shows where each character is.<br>A key lights up when it is pressed, and, together with "
     "its characters on the Alphabet Bar, when the mouse moves over it.",
     "bg27+bgBackSpace+bgSpacebar"},
    {"Advanced Options",
     "Opens the table of contents for colors, effects at located keys, fonts, pictures, shadows, "
     "sounds and the look of the game boxes.<br>Themes are saved and opened there too.",
     "options"},
    {"Uppercase", "Uppercase letters.<Br>Requires either of the Shift keys<br>", "gamesConsonants"},
    {"Lowercase", "Lowercase letters.", "gamesVarious"},
    {"Number Line Plus+",
     "The number row and the punctuation keys, first without and then with Shift.",
     "gamesNumberLine"},
    {"Everything !!", "Lowercase, Uppercase, then Numer Line.<br>", "gamesAll"},
    {"Key Shape", "Changes the shape of the Keys from square to circle.", "frameKeyShape"},
    {"Reverse",
     "Runs the tutorials from the last character of the set back to the first."
     "<br>Click the buttons under the tutorial / games below to the left.",
     "pbReverseVarious pbReverseConsonants pbReverseNumberLine pbReverseAll"},
    {"Forward",
     "Runs the tutorials from the first character of the set to the last."
     "<br>Click the buttons under the tutorial / games below to the left.",
     "pbForwardVarious pbForwardConsonants pbForwardNumberLine pbForwardAll"},
    {"Random",
     "Runs the tutorials in a random order. Stops at 200 correct entries."
     "<br>Click the buttons under the tutorial / games below to the left.",
     "pbRandomVarious pbRandomConsonants pbRandomNumberLine pbRandomAll"},
    {"Animation On/Off",
     "Whether the Alphabet Bar runs through the characters when a game is chosen."
     "<br>It is always off while a game is running.",
     "animation+animationOff"},
    {"Correct ", "How many entries of this game were correct.", "correct+labelCorrect"},
    {"Incorrect ", "How many entries of this game were not correct.", "incorrect+labelIncorrect"},
    {"Current Game",
     "The direction, the set and the range of characters of the chosen game, "
     "and how a finished key looks.",
     "gamePlayBg"},
    {"Help  ", "Will display the main menu again in a separate window.", "helpButton"},
    {"Highlight",
     "Colors the character to match on the keyboard and on the Alphabet Bar."
     "<br>A second click takes the color away. Only while a game is running.",
     "goldenHighlight"},
    {"Keyboard Arrow (left) ", "Hides and shows the note about keyboard entry.",
     "buttonInstructionsLeft labelInstructionsLeft"},
    {"Lines ",
     "Two lines that cross on the character to match."
     "<br>A second click takes them away. Only while a game is running.",
     "lineHighlight"},
    {"Match This ", "The character to type.", "matchThis+leMatch"},
    {"Messages", "Hints of the instructor, and a question when the game is over.",
     "display2+backInstructor"},
    {"Mouse Arrow (right)", "Hides and shows the note about moving the mouse.",
     "buttonInstructionsRight labelInstructionsRight"},
    {"Options ",
     "The looks of the Lines, and whether they lie over or under the keys."
     "<br>A second click closes them.",
     "lineHighOptions"},
    {"Quit  ", "Terminates the game. Closes all windows. ", "pbQuit"},
    {"Soft Difficulty ",
     "An entry is made after the space bar is pressed, so a wrong key can be replaced first."
     "<br>Best for beginners.",
     "soft"},
    {"Start  ",
     "Starts the chosen game with an empty scoreboard, and switches the animation off."
     "<br>During a game it starts the game again.",
     "start"},
    {"Stop  ", "Stops the game. The score stays in view until the next start.", "stop"},
    {"Strict Difficulty ",
     "An entry is made as soon as any key is pressed."
     "<br>Best for more advanced users.",
     "strict"},
    {"Timer ",
     "The seconds of this game.<br>Off stops the clock and On starts it again; "
     "the game goes on either way.",
     "timer+lcd+on+off"},
    {"Virtural Instructor  ", "Watches over the game, and looks up now and then.", "piclabel1"},
    {"Your Entry ", "The character that was typed.", "yourEntry+leUser"},
    {" Letters Displayed ",
     "Which characters the keys show: none, the lower, the upper, or both."
     "<br>Start always shows both.",
     "labelOptions"},
};
