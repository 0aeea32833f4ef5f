#pragma once

// The pages of text in the help windows, apart from those that are made from the
// table of topics. They are not in the forms: Designer would write the fonts of its desktop
// into them.
namespace Pages {

constexpr char starting[] = R"(
<h2>Starting the Game</h2>
<ol>
<li><b>Open the game.</b> Press <b>Start</b> in the menu. The window with the keyboard opens.</li>
<li><b>Choose a game.</b> The left column has four sets of characters: <b>Lowercase</b>,
<b>Uppercase</b>, <b>Number Line Plus+</b> and <b>Everything&nbsp;!!</b> Each has three buttons:
Reverse on the left, Random in the middle, Forward on the right. The Alphabet Bar runs through the
characters of your choice, and <b>Current Game</b> tells it in words. Until you choose, the game is
Everything&nbsp;!! in the Forward direction.</li>
<li><b>Choose a difficulty</b> if you like. In <b>Soft</b> an entry counts when you press the space
bar, so you can correct yourself first. In <b>Strict</b> it counts as soon as you press a key.</li>
<li><b>Press Start.</b> The clock runs, and the first character stands in <b>Match This</b>.</li>
<li><b>Type that character.</b> It appears in <b>Your Entry</b>. After a correct entry the next
character comes; after an incorrect one the same character waits for another try.</li>
</ol>
<h3>While You Play</h3>
<ul>
<li>Capital letters and the upper characters of a key need <b>Shift</b>. Caps Lock has no effect
here.</li>
<li>Can't find a key? <b>Highlight</b> colors it, and <b>Lines</b> cross on it.</li>
<li><b>Stop</b> ends the game and leaves the score in view. <b>Start</b> begins it again from the
first character.</li>
<li>Choose another set or direction before Start. A direction that is chosen during a game mostly
does not fit the character in Match This; entries then count for nothing until you press Stop or
Start. Another set only changes when that game ends.</li>
</ul>
<h3>The End of a Game</h3>
<p>A Forward or Reverse game is over when each character of the set has been typed, a Random game
after 200 correct entries. Then the instructor asks whether you would like to play again: press
<b>Start</b>, or choose another game first.</p>
)";

constexpr char options[] = R"(
<h2>Advanced Options</h2>
<p>The keyboard is yours to dress up. Press <b>Options</b> in the upper right corner; a table of
contents slides in. Its buttons open one panel at a time, and a second click closes it.</p>
<table cellspacing="0" cellpadding="6">
<tr><td><b>Color Madness</b></td><td>Colors, gradients and borders for each state of a key: at rest,
pressed, under the mouse and highlighted. On the tab <i>Paint</i> you paint single keys by moving
the mouse over them. <i>Save / Open</i> keeps a look in a file and opens it again, and
<i>Themes</i> offers ready-made ones.</td></tr>
<tr><td><b>Kestrix Keyboard</b></td><td>What happens to a key once you have located it: an
animation, a sound, or a fade. To be chosen between games.</td></tr>
<tr><td><b>Fonts</b></td><td>Another font for the lower and for the upper characters.</td></tr>
<tr><td><b>Pictures</b></td><td>Pictures and animations on the keys and on the wallpaper.</td></tr>
<tr><td><b>Shadows</b></td><td>Shadows behind the characters, the keys and the Alphabet
Bar.</td></tr>
<tr><td><b>Audio</b></td><td>A sound for each key press; move the mouse over a speaker to try it
out.</td></tr>
<tr><td><b>Game Play</b></td><td>The looks of Match This and Your Entry.</td></tr>
</table>
<p>A look lasts until you quit, unless you save it as a theme.</p>
)";

// The colors of the fingers are those of the picture above it.
constexpr char touchTyping[] = R"(
<table cellspacing="2" cellpadding="5" width="100%">
<tr><td colspan="4" align="center"><b>Left hand</b></td><td align="center"><b>Both</b></td>
<td colspan="4" align="center"><b>Right hand</b></td></tr>
<tr>
<td bgcolor="#cc79a7" align="center" width="10%">little</td>
<td bgcolor="#93d0f3" align="center" width="10%">ring</td>
<td bgcolor="#f5ec7a" align="center" width="10%">middle</td>
<td bgcolor="#55c09b" align="center" width="10%">index</td>
<td bgcolor="#f2f2f2" align="center">thumbs</td>
<td bgcolor="#eeb23a" align="center" width="10%">index</td>
<td bgcolor="#5f9fd3" align="center" width="10%">middle</td>
<td bgcolor="#bfc5cb" align="center" width="10%">ring</td>
<td bgcolor="#e98a55" align="center" width="10%">little</td>
</tr></table>
<h2>Touch Typing</h2>
<p>Touch typing is typing with all ten fingers and without looking at the keys. Each finger has keys
of its own; in the picture they have its color.</p>
<h3>The Home Row</h3>
<p>Lay your index fingers on <b>f</b> and <b>j</b>. Both keys carry a small mark that you can feel.
The other fingers rest beside them: the left hand on <b>a s d f</b>, the right hand on
<b>j k l ;</b> &ndash; the keys with the thick frames &ndash; and the thumbs on the space bar. From
there a finger moves to its key, types it, and comes back.</p>
<h3>Which Finger Types Which Key</h3>
<ul>
<li>A finger types the keys of its color, above and below its place on the home row.</li>
<li>The index fingers have two columns each, since they are the most nimble.</li>
<li>The little fingers also type Shift, Tab, Caps Lock, Enter and Backspace.</li>
<li>For a capital letter, hold Shift with the little finger of the <i>other</i> hand.</li>
</ul>
<h3>Posture</h3>
<p>Sit upright, with both feet on the floor and loose shoulders. Your elbows make a right angle, and
your wrists are straight and do not lean on the edge of the table. The screen is an arm's length
away.</p>
<h3>Eyes on the Screen</h3>
<p>Do not look down. If you are lost, feel for the marks on f and j. The keyboard on the screen shows
where a key is; <b>Highlight</b> and <b>Lines</b> point at it.</p>
<h3>Practice</h3>
<ul>
<li>First right, then fast. Speed comes by itself.</li>
<li>Ten minutes every day do more than an hour on Sunday.</li>
<li>Begin with <b>Lowercase</b>, Forward, Soft. Then take Random, Uppercase, and Number Line
Plus+.</li>
<li>To play with these colors, open <b>Options</b>, <b>Color Madness</b>, <b>Save / Open</b>. There
press <b>Open Keyboard</b> and choose <i>Finger Colors</i> in the folder Keyboard Looks; then press
<b>Open Paint</b> and choose <i>Finger Colors</i> in Paint Looks. <i>Plain</i>, opened in the same
two steps, brings the black keyboard back.</li>
</ul>
)";

constexpr char exploring[] = R"(
<p style="margin-bottom:14px;">Self-exploring is learning at your own pace: there is no clock, no
score and nothing to finish.</p>
<p style="margin-bottom:14px;">It happens in the main tutorial and game area. Close this window and
press Start in the menu to get there.</p>
<p style="margin-bottom:14px;">If not in game play, every key pressed on the players keyboard will
highlight the on-screen keyboard and the corresponding letter or character on the English Alphabet
Bar with the color blue.</p>
<p style="margin-bottom:14px;">The player can move their mouse over either the English Alphabet Bar
or the on-screen keyboard, and the corresponding letters or characters will highlight with the color
gold.</p>
<p>Highlight and Lines are only when the game is in play.</p>)";

} // namespace Pages
