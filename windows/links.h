#pragma once

// Every outside page that the companion windows open, in one place, so that an
// address that moves is mended here alone. None of them is needed to play.
namespace Links {

// TO BE SUPPLIED: these two pages are not published yet. ".example" is a name
// that is reserved and resolves nowhere, so nobody is led to a stranger's page.
constexpr char video[] = "https://kestrix-typing.example/video";     // the game shown in a film
constexpr char contact[] = "https://kestrix-typing.example/contact"; // how to reach the makers

// Learning English
constexpr char courses[] = "https://learnenglish.britishcouncil.org/";     // free lessons by level
constexpr char grammar[] = "https://en.wikibooks.org/wiki/English_in_Use"; // a free grammar book
constexpr char dictionary[] = "https://en.wiktionary.org/";                // words, spoken aloud
constexpr char easyReading[] = "https://simple.wikipedia.org/"; // articles in simple words

// Translators
constexpr char translatorSentences[] = "https://libretranslate.com/"; // sentences, free software
constexpr char translatorDocuments[] = "https://apertium.org/";       // documents, free software
constexpr char phrasebooks[] = "https://en.wikivoyage.org/wiki/Phrasebooks"; // for travellers

// Color schemes, for the Advanced Options
constexpr char colorSchemes[] = "https://colorbrewer2.org/"; // sets of colors that go together
constexpr char colorNames[] = "https://www.w3.org/TR/css-color-4/#named-colors"; // names, values
constexpr char colorHarmony[] = "https://en.wikipedia.org/wiki/Color_scheme";    // how to combine

// Other
constexpr char layouts[] = "https://en.wikipedia.org/wiki/Keyboard_layout";  // keyboards compared
constexpr char touchTyping[] = "https://en.wikipedia.org/wiki/Touch_typing"; // posture, fingers

} // namespace Links
