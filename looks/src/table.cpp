#include "table.h"

#include "keys.h"

#include <QString>
#include <iterator>

namespace ReadyLooks {

namespace {

using namespace GradientText;

constexpr Shape Top = TopToBottom;
constexpr Shape Side = LeftToRight;
constexpr Shape Corner = CornerToCorner;
constexpr Shape Rings = RepeatingRadial;

// The caps as they lie, and by the same places the fingers that type them: 0 to 3 of the left hand
// from the little one, 4 to 7 of the right hand from the index finger, and the thumbs.
constexpr const char *rows[] = {"`1234567890-=", "qwertyuiop[]\\", "asdfghjkl;'", "zxcvbnm,./"};
constexpr const char *fingers[] = {"0012334456777", "0123344567777", "01233445677", "0123344567"};
constexpr int thumb = 8;

struct Spot
{
    int row, column, finger;
};

Spot spotOf(int placeIndex)
{
    if (placeIndex < Keys::capCount) {
        const int key = Keys::unshifted(placeIndex + 1);
        for (int row = 0; row < int(std::size(rows)); ++row) {
            const int column =
                QString(rows[row]).indexOf(QLatin1Char(Keys::characters[Keys::index(key)]));
            if (column >= 0)
                return {row, column + (row > 0), fingers[row][column] - '0'};
        }
    }
    switch (Keys::textOrder[size_t(placeIndex - Keys::capCount)]) {
    case Keys::Control::BackSpace:
        return {0, 13, 7};
    case Keys::Control::Tab:
        return {1, 0, 0};
    case Keys::Control::CapsLock:
        return {2, 0, 0};
    case Keys::Control::Enter:
        return {2, 12, 7};
    case Keys::Control::ShiftLeft:
        return {3, 0, 0};
    case Keys::Control::ShiftRight:
        return {3, 11, 7};
    case Keys::Control::Spacebar:
        break;
    }
    return {4, 6, thumb};
}

// Letters, digits, signs, control keys.
int kindOf(int placeIndex)
{
    if (placeIndex >= Keys::capCount)
        return 3;
    const QChar character = Keys::characters[Keys::index(Keys::unshifted(placeIndex + 1))];
    return character.isLetter() ? 0 : character.isDigit() ? 1 : 2;
}

} // namespace

int paintOf(Pattern pattern, int placeIndex, int count)
{
    const Spot spot = spotOf(placeIndex);
    switch (pattern) {
    case Pattern::Fingers:
        return spot.finger % count;
    case Pattern::Rows:
        return spot.row % count;
    case Pattern::Columns:
        return spot.column % count;
    case Pattern::Diagonal:
        return (spot.column + spot.row) % count;
    case Pattern::Kinds:
        return kindOf(placeIndex) % count;
    case Pattern::Scattered:
        break;
    }
    // Of five, so that neighbors differ in each direction and nothing seems to repeat.
    static constexpr int shift[] = {0, 1, 0, 4, 3};
    return (spot.column * 2 + spot.column / 4 + shift[spot.row]) % count;
}

bool isHome(int placeIndex)
{
    const Spot spot = spotOf(placeIndex);
    return placeIndex < Keys::capCount && spot.row == 2 && spot.column <= 10 && spot.column != 5 &&
           spot.column != 6; // g and h
}

const std::vector<ReadyLook> &table()
{
    static const std::vector<ReadyLook> looks{
        {"High Contrast",
         "Large black letters on white, in sharp frames, for weak eyes and bright rooms.",
         "Calibri",
         15,
         {{Solid, "", "#ffffff"}, {2, Solid, "", "#000000"}, "#000000", "#000000"},
         {{Solid, "", "#5fd4ff"}, {3, Solid, "", "#000000"}, "#000000", "#000000"},
         {{Solid, "", "#ffe100"}, {2, Solid, "", "#000000"}, "#000000", "#000000"},
         {{Solid, "", "#ff9a1f"}, {3, Solid, "", "#000000"}, "#000000", "#000000"},
         {{Solid, "", "#bdbdbd"}, {}, "#000000", "#000000"},
         {Solid, "", "#ffffff"},
         {},
         {{Solid, "", "#ffffff"}, {2, Solid, "", "#000000"}, "#000000", "#000000"},
         "#d00000",
         Pattern::Kinds,
         {{{Solid, "", "#ffffff"}, {2, Solid, "", "#000000"}, "#000000", "#000000"},
          {{Solid, "", "#fff27a"}, {2, Solid, "", "#000000"}, "#000000", "#000000"},
          {{Solid, "", "#b8f0ff"}, {2, Solid, "", "#000000"}, "#000000", "#000000"},
          {{Solid, "", "#e6e6e6"}, {2, Solid, "", "#000000"}, "#000000", "#000000"}}},

        {"Big Letters",
         "Large, plain letters on a calm cream.",
         "Liberation Sans",
         15,
         {{Solid, "", "#fff6d6"}, {2, Solid, "", "#d9b75a"}, "#1a1a1a", "#1a1a1a"},
         {{Solid, "", "#9fdcff"}, {3, Solid, "", "#005a8c"}, "#001d33", "#001d33"},
         {{Solid, "", "#ffffff"}, {3, Solid, "", "#d9b75a"}, "#1a1a1a", "#1a1a1a"},
         {{Solid, "", "#ffb84d"}, {3, Solid, "", "#9c3d00"}, "#1a1a1a", "#1a1a1a"},
         {{Solid, "", "#d9d2bc"}, {}, "#1a1a1a", "#1a1a1a"},
         {Top, "#fffdf6", "#f3e6bf"},
         {},
         {{Solid, "", "#fff6d6"}, {2, Solid, "", "#d9b75a"}, "#1a1a1a", "#1a1a1a"},
         "#b35900",
         Pattern::Rows,
         {{{Solid, "", "#fff6d6"}, {2, Solid, "", "#d9b75a"}, "#1a1a1a", "#1a1a1a"},
          {{Solid, "", "#e3f3d3"}, {2, Solid, "", "#9cc46e"}, "#1a1a1a", "#1a1a1a"},
          {{Solid, "", "#d6ecfb"}, {2, Solid, "", "#86bbe0"}, "#1a1a1a", "#1a1a1a"},
          {{Solid, "", "#fde0e6"}, {2, Solid, "", "#eb9fb2"}, "#1a1a1a", "#1a1a1a"},
          {{Solid, "", "#eee6fa"}, {2, Solid, "", "#bda5e6"}, "#1a1a1a", "#1a1a1a"}}},

        // Tints of eight colors that the color-blind tell apart, no two like ones side by side.
        {"Finger Colors",
         "Each key in the color of the finger that types it, in colors that everybody can tell "
         "apart.",
         "Calibri",
         0,
         {{Top, "#ffffff", "#eceff3"}, {2, Solid, "", "#9aa5b1"}, "#111111", "#111111"},
         {{Solid, "", "#ffffff"}, {3, Solid, "", "#111111"}, "#111111", "#111111"},
         {{Solid, "", "#ffffff"}, {3, Solid, "", "#5f6b78"}, "#111111", "#111111"},
         {{Solid, "", "#ffd000"}, {3, Solid, "", "#111111"}, "#111111", "#111111"},
         {{Solid, "", "#c9ced4"}, {}, "#111111", "#111111"},
         {Top, "#ffffff", "#dbe3ea"},
         {},
         {{Top, "#ffffff", "#eceff3"}, {2, Solid, "", "#9aa5b1"}, "#111111", "#111111"},
         "#444444",
         Pattern::Fingers,
         {{{Top, "#dd9dc2", "#cc79a7"}, {2, Solid, "", "#8a3668"}, "#111111", "#111111"},
          {{Top, "#b5e0f8", "#93d0f3"}, {2, Solid, "", "#2b7fb0"}, "#111111", "#111111"},
          {{Top, "#fbf6a8", "#f5ec7a"}, {2, Solid, "", "#a89c10"}, "#111111", "#111111"},
          {{Top, "#7fd1b5", "#55c09b"}, {2, Solid, "", "#00694d"}, "#111111", "#111111"},
          {{Top, "#f6c767", "#eeb23a"}, {2, Solid, "", "#9a6a00"}, "#111111", "#111111"},
          {{Top, "#86b7e0", "#5f9fd3"}, {2, Solid, "", "#004a75"}, "#111111", "#111111"},
          {{Top, "#d5d9dd", "#bfc5cb"}, {2, Solid, "", "#5c656e"}, "#111111", "#111111"},
          {{Top, "#f0a277", "#e98a55"}, {2, Solid, "", "#8f3d00"}, "#111111", "#111111"},
          {{Top, "#ffffff", "#f2f2f2"}, {2, Solid, "", "#5c656e"}, "#111111", "#111111"}}},

        {"Pastel",
         "Soft sugared colors.",
         "Calibri",
         0,
         {{Top, "#ffffff", "#efe3ff"}, {2, Solid, "", "#b79ce8"}, "#4a3b78", "#4a3b78"},
         {{Top, "#e3f4ff", "#b3dcfb"}, {3, Solid, "", "#6aaee0"}, "#274b78", "#274b78"},
         {{Top, "#fff8e3", "#ffe6b0"}, {3, Solid, "", "#f0bf6a"}, "#6b3f12", "#6b3f12"},
         {{Top, "#ffe3ee", "#ffbdd6"}, {3, Solid, "", "#f075a6"}, "#6b123f", "#6b123f"},
         {{Top, "#eaf8ea", "#cdebd0"}, {}, "#2b5a36", "#2b5a36"},
         {Top, "#fffafd", "#e3cdf6"},
         {},
         {{Top, "#ffffff", "#efe3ff"}, {2, Solid, "", "#b79ce8"}, "#4a3b78", "#4a3b78"},
         "#e58ab5",
         Pattern::Diagonal,
         {{{Top, "#fff1f5", "#ffcfdf"}, {2, Solid, "", "#f29bb9"}, "#463a6b", "#463a6b"},
          {{Top, "#fff5ea", "#ffdcbd"}, {2, Solid, "", "#f0b380"}, "#463a6b", "#463a6b"},
          {{Top, "#fffdec", "#fdf3b5"}, {2, Solid, "", "#e3cf6d"}, "#463a6b", "#463a6b"},
          {{Top, "#f1fbf0", "#cbedc9"}, {2, Solid, "", "#8fcf8c"}, "#463a6b", "#463a6b"},
          {{Top, "#eff9ff", "#c5e6fb"}, {2, Solid, "", "#86c0ea"}, "#463a6b", "#463a6b"},
          {{Top, "#f8f2ff", "#e0cdfb"}, {2, Solid, "", "#b394e6"}, "#463a6b", "#463a6b"}}},

        {"Terminal",
         "A green screen on the paper that came out of its printer.",
         "Liberation Mono",
         0,
         {{Top, "#0d2416", "#04100a"}, {1, Solid, "", "#2f9e55"}, "#56f089", "#56f089"},
         {{Top, "#0f5c30", "#0a4222"}, {2, Solid, "", "#7dffad"}, "#d9ffe6", "#d9ffe6"},
         {{Top, "#11484a", "#0a3335"}, {2, Solid, "", "#5fe0e0"}, "#c9ffff", "#c9ffff"},
         {{Top, "#7a4700", "#5c3500"}, {3, Solid, "", "#ffb52e"}, "#ffe2a3", "#ffe2a3"},
         {{Top, "#2c3a31", "#222e27"}, {}, "#a8e6bd", "#a8e6bd"},
         {Top, "#fbfffb", "#a9d6b6"},
         {},
         {{Top, "#0d2416", "#04100a"}, {2, Solid, "", "#2f9e55"}, "#56f089", "#56f089"},
         "#ffab1a",
         Pattern::Kinds,
         {{{Top, "#0d2416", "#04100a"}, {1, Solid, "", "#2f9e55"}, "#56f089", "#56f089"},
          {{Top, "#2a1d05", "#140d02"}, {1, Solid, "", "#b3801f"}, "#ffc552", "#ffc552"},
          {{Top, "#0a2430", "#041218"}, {1, Solid, "", "#2b8fae"}, "#7fe0ff", "#7fe0ff"},
          {{Top, "#232826", "#141816"}, {1, Solid, "", "#6f7d75"}, "#d5e6dc", "#d5e6dc"}}},

        {"Wood",
         "Turned from the trunk: rings of walnut on a parchment.",
         "Liberation Serif",
         0,
         {{Rings, "#6f4522", "#7b4e28"}, {3, Solid, "", "#3f2511"}, "#fff3d9", "#fff3d9"},
         {{Top, "#33200f", "#432914"}, {3, Solid, "", "#7d5228"}, "#ffe3ad", "#ffe3ad"},
         {{Rings, "#5a5a1d", "#636322"}, {3, Solid, "", "#36360f"}, "#fffbe0", "#fffbe0"},
         {{Rings, "#93370f", "#a03d12"}, {3, Solid, "", "#c98a1e"}, "#fff3d9", "#fff3d9"},
         {{Top, "#6b6055", "#5c5249"}, {}, "#fff3d9", "#fff3d9"},
         {Top, "#fffaf0", "#d9b98c"},
         {},
         {{Top, "#fff8e8", "#f3e3c3"}, {3, Solid, "", "#3f2511"}, "#4a2c12", "#4a2c12"},
         "#b5561c",
         Pattern::Scattered,
         {{{Rings, "#6f4522", "#7b4e28"}, {3, Solid, "", "#3f2511"}, "#fff3d9", "#fff3d9"},
          {{Rings, "#7a3a1e", "#874425"}, {3, Solid, "", "#451d0c"}, "#fff3d9", "#fff3d9"},
          {{Rings, "#523019", "#5c381e"}, {3, Solid, "", "#2c180a"}, "#fff3d9", "#fff3d9"},
          {{Rings, "#7d5522", "#865d29"}, {3, Solid, "", "#4a310f"}, "#fff3d9", "#fff3d9"},
          {{Rings, "#3d2a20", "#463126"}, {3, Solid, "", "#1d120c"}, "#fff3d9", "#fff3d9"}}},

        {"Neon",
         "Glass tubes at midnight.",
         "Calibri",
         0,
         {{Radial, "#2a0f52", "#0a0320"}, {2, Side, "#ff3df2", "#1fe3ff"}, "#ff9bf8", "#8df3ff"},
         {{Radial, "#6f1490", "#430a5c"}, {3, Solid, "", "#ffffff"}, "#ffffff", "#ffffff"},
         {{Radial, "#004680", "#002b52"}, {3, Solid, "", "#1fe3ff"}, "#ffffff", "#ffffff"},
         {{Radial, "#94004f", "#6b0038"}, {3, Solid, "", "#ffe81f"}, "#fff36b", "#fff36b"},
         {{Top, "#33305e", "#26244a"}, {}, "#cfcaff", "#cfcaff"},
         {Top, "#fcf9ff", "#b7a0f2"},
         {},
         {{Radial, "#2a0f52", "#0a0320"}, {2, Side, "#ff3df2", "#1fe3ff"}, "#ffe81f", "#8df3ff"},
         "#ff1fd6",
         Pattern::Columns,
         {{{Radial, "#330a2c", "#0c0310"}, {2, Solid, "", "#ff3da8"}, "#ffa3d7", "#ffa3d7"},
          {{Radial, "#331a0a", "#0c0310"}, {2, Solid, "", "#ff8a2b"}, "#ffc48f", "#ffc48f"},
          {{Radial, "#2e2a05", "#0c0310"}, {2, Solid, "", "#ffe81f"}, "#fff27d", "#fff27d"},
          {{Radial, "#0a3316", "#030c10"}, {2, Solid, "", "#3dff7a"}, "#8dffb3", "#8dffb3"},
          {{Radial, "#052e33", "#030c10"}, {2, Solid, "", "#1fe3ff"}, "#8df3ff", "#8df3ff"},
          {{Radial, "#200a47", "#080320"}, {2, Solid, "", "#a86bff"}, "#d6bdff", "#d6bdff"}}},

        {"Spring",
         "Blossom over a meadow.",
         "Calibri",
         0,
         {{Top, "#fbfff5", "#d3f0bf"}, {2, Solid, "", "#7dbb58"}, "#1f4a1a", "#1f4a1a"},
         {{Top, "#c3ee8f", "#9ad95f"}, {3, Solid, "", "#4f9a24"}, "#173d0e", "#173d0e"},
         {{Top, "#fffde0", "#fff09e"}, {3, Solid, "", "#e3c12e"}, "#4f3d00", "#4f3d00"},
         {{Top, "#ffe0ee", "#ffaed0"}, {3, Solid, "", "#ec5c98"}, "#5c0f35", "#5c0f35"},
         {{Top, "#e3eadf", "#cbd6c5"}, {}, "#33472c", "#33472c"},
         {Top, "#f6fcff", "#a8d98a"},
         {},
         {{Top, "#ffffff", "#fdeaf3"}, {2, Solid, "", "#ec8fb8"}, "#5c0f35", "#1f4a1a"},
         "#ec5c98",
         Pattern::Scattered,
         {{{Radial, "#fff6d8", "#ffc1dc"}, {2, Solid, "", "#e8799f"}, "#2b4a1c", "#2b4a1c"},
          {{Top, "#f5ffea", "#c3eaa6"}, {2, Solid, "", "#7dbb58"}, "#2b4a1c", "#2b4a1c"},
          {{Radial, "#fff2a3", "#ffffff"}, {2, Solid, "", "#a9c99a"}, "#2b4a1c", "#2b4a1c"},
          {{Top, "#e9f8ce", "#abdc86"}, {2, Solid, "", "#69a847"}, "#2b4a1c", "#2b4a1c"},
          {{Radial, "#fff6d8", "#dccbf7"}, {2, Solid, "", "#a585d9"}, "#2b4a1c", "#2b4a1c"}}},

        {"Summer",
         "Sand, sea and the sun over them.",
         "Calibri",
         0,
         {{Top, "#fffbea", "#ffe2a0"}, {2, Solid, "", "#eda035"}, "#5a3200", "#5a3200"},
         {{Top, "#b8ecf5", "#6fd0e6"}, {3, Solid, "", "#1488a8"}, "#083c4f", "#083c4f"},
         {{Top, "#ffffff", "#fff6d0"}, {3, Solid, "", "#f2b632"}, "#5a3200", "#5a3200"},
         {{Top, "#ffc4ad", "#ff9877"}, {3, Solid, "", "#e0471b"}, "#4a1500", "#4a1500"},
         {{Top, "#ece3cf", "#ddd0b3"}, {}, "#4f4025", "#4f4025"},
         {Top, "#fafeff", "#8fd8ec"},
         {},
         {{Radial, "#fffef2", "#ffe9a8"}, {2, Solid, "", "#eda035"}, "#5a3200", "#5a3200"},
         "#ff7a3d",
         Pattern::Rows,
         {{{Radial, "#fffbe0", "#ffe17a"}, {2, Solid, "", "#efae2e"}, "#3d2600", "#3d2600"},
          {{Top, "#ffe9d0", "#ffc28f"}, {2, Solid, "", "#ee8a4a"}, "#3d2600", "#3d2600"},
          {{Top, "#d9f5f7", "#8fdbe6"}, {2, Solid, "", "#35a5bd"}, "#082f40", "#082f40"},
          {{Top, "#a8e2ef", "#5fbfdc"}, {2, Solid, "", "#2388ad"}, "#082f40", "#082f40"},
          {{Top, "#fff8e3", "#f2dcae"}, {2, Solid, "", "#c9a35c"}, "#3d2600", "#3d2600"}}},

        {"Autumn",
         "A heap of leaves.",
         "Liberation Serif",
         0,
         {{Top, "#ffd58f", "#f0a24a"}, {2, Solid, "", "#8f4312"}, "#3a1703", "#3a1703"},
         {{Top, "#e8d5b5", "#cdb48a"}, {3, Solid, "", "#6e4a1c"}, "#2e1a05", "#2e1a05"},
         {{Top, "#fff8e3", "#ffe9ae"}, {3, Solid, "", "#c9761c"}, "#3a1703", "#3a1703"},
         {{Top, "#ffff9e", "#ffee3d"}, {3, Solid, "", "#a82a08"}, "#5c1300", "#5c1300"},
         {{Top, "#d6c4ab", "#bfa98b"}, {}, "#33200d", "#33200d"},
         {Top, "#fffcf5", "#e8bd7c"},
         {},
         {{Top, "#fffaf0", "#fbe3b8"}, {2, Solid, "", "#8f4312"}, "#7a2400", "#3a1703"},
         "#c23b10",
         Pattern::Scattered,
         {{{Corner, "#ffdf8a", "#f2b035"}, {2, Solid, "", "#a8660c"}, "#2e1402", "#2e1402"},
          {{Corner, "#f7a55c", "#e37b32"}, {2, Solid, "", "#93400c"}, "#2e1402", "#2e1402"},
          {{Corner, "#ee8a66", "#d9653f"}, {2, Solid, "", "#872710"}, "#2e0f02", "#2e0f02"},
          {{Corner, "#dcd27a", "#b8ab45"}, {2, Solid, "", "#6b6014"}, "#2a2002", "#2a2002"},
          {{Corner, "#fbc56f", "#e99a3a"}, {2, Solid, "", "#965a0c"}, "#2e1402", "#2e1402"}}},

        {"Winter",
         "Frost on the panes, and a red berry.",
         "Calibri",
         0,
         {{Top, "#ffffff", "#d3e8f8"}, {2, Solid, "", "#86b6da"}, "#0d2b4d", "#0d2b4d"},
         {{Top, "#b9dcff", "#86bff5"}, {3, Solid, "", "#2a6fb5"}, "#061f3d", "#061f3d"},
         {{Top, "#ffffff", "#ece6ff"}, {3, Solid, "", "#9a86dc"}, "#231a57", "#231a57"},
         {{Top, "#ffc9c9", "#ff9a9a"}, {3, Solid, "", "#c41f32"}, "#47040c", "#47040c"},
         {{Top, "#e0e5ea", "#c6d0d9"}, {}, "#24384d", "#24384d"},
         {Top, "#ffffff", "#a6cdea"},
         {},
         {{Top, "#ffffff", "#e6f3fc"}, {2, Solid, "", "#86b6da"}, "#a30f22", "#0d2b4d"},
         "#c41f32",
         Pattern::Scattered,
         {{{Corner, "#ffffff", "#c9e3f7"}, {2, Solid, "", "#86b6da"}, "#0d2b4d", "#0d2b4d"},
          {{Radial, "#ffffff", "#b8dbf5"}, {2, Solid, "", "#6fa8d4"}, "#0d2b4d", "#0d2b4d"},
          {{Corner, "#e9f4fc", "#a9d2f0"}, {2, Solid, "", "#5f9ccc"}, "#0d2b4d", "#0d2b4d"},
          {{Radial, "#ffffff", "#dfe6f7"}, {2, Solid, "", "#9aaed9"}, "#0d2b4d", "#0d2b4d"},
          {{Top, "#ffffff", "#edf6fc"}, {2, Solid, "", "#a9cbe3"}, "#0d2b4d", "#0d2b4d"}}},

        {"Typewriter",
         "Ivory letters under glass, a chrome rim around each.",
         "Liberation Mono",
         0,
         {{Radial, "#3d3d3d", "#141414"}, {3, Solid, "", "#b4b7bb"}, "#fbf3dc", "#fbf3dc"},
         {{Radial, "#5c4a2a", "#33280f"}, {3, Solid, "", "#e9eaec"}, "#fff6d8", "#fff6d8"},
         {{Radial, "#2f4f75", "#16304f"}, {3, Solid, "", "#b4b7bb"}, "#ffffff", "#ffffff"},
         {{Radial, "#b3261a", "#80140c"}, {3, Solid, "", "#c9a24a"}, "#fff8e6", "#fff8e6"},
         {{Top, "#666666", "#555555"}, {}, "#fbf3dc", "#fbf3dc"},
         {Top, "#fffefa", "#d9c7a3"},
         {},
         {{Top, "#fffefa", "#faf3e0"}, {1, Solid, "", "#a89a7a"}, "#1d1d1d", "#1d1d1d"},
         "#b3261a",
         Pattern::Kinds,
         {{{Radial, "#3d3d3d", "#141414"}, {3, Solid, "", "#b4b7bb"}, "#fbf3dc", "#fbf3dc"},
          {{Radial, "#3d3d3d", "#141414"}, {3, Solid, "", "#b4b7bb"}, "#fbf3dc", "#fbf3dc"},
          {{Radial, "#4d3a24", "#2a1d0e"}, {3, Solid, "", "#b4b7bb"}, "#fbf3dc", "#fbf3dc"},
          {{Radial, "#8c2018", "#5c100a"}, {3, Solid, "", "#b4b7bb"}, "#fbf3dc", "#fbf3dc"}}},
    };
    return looks;
}

} // namespace ReadyLooks
