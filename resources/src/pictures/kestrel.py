"""The kestrel of the splash and of the English picture."""
from art import (AMBER, AMBER_DARK, CHESTNUT, CHESTNUT_DARK, CREAM, CREAM_DARK, INK, SLATE, SLATE_DARK, feather, polar)


def tail(x, y, angle, length, spread, count=7):
    """A fan with the dark band and pale tips that kestrels show when they hover."""
    out = []
    order = sorted(range(count), key=lambda i: -abs(i - (count - 1) / 2))
    for i in order:
        a = angle + (i - (count - 1) / 2) * spread / (count - 1)
        out.append(feather(x, y, a, length, length * 0.23, CREAM, f'stroke="{INK}" stroke-width="1.2"'))
        out.append(feather(x, y, a, length * 0.93, length * 0.225, INK))
        out.append(feather(x, y, a, length * 0.76, length * 0.22, SLATE, f'stroke="{SLATE_DARK}" stroke-width="1"'))
    return "".join(out)


def wing(side):
    """A wing raised to hover, seen from in front; side is -1 for the left one."""
    out = []
    shoulder, wrist = (16, -6), (66, -52)
    # secondaries hang from the arm, primaries are spread from the wrist
    for i in range(7):
        t = i / 6
        x = shoulder[0] + (wrist[0] - shoulder[0]) * t
        y = shoulder[1] + (wrist[1] - shoulder[1]) * t
        out.append(feather(x, y, 78 - 38 * t, 46 + 16 * t, 19, CREAM_DARK, f'stroke="{CHESTNUT_DARK}" stroke-width="1.3"'))
    tips = []
    for i in range(8):
        t = i / 7
        a = 40 - 92 * t
        length = 76 + 22 * t - 26 * max(0, t - 0.8) * 3
        out.append(feather(wrist[0], wrist[1], a, length, 19, SLATE_DARK, f'stroke="{INK}" stroke-width="1.3"'))
        out.append(feather(wrist[0], wrist[1], a, length * 0.66, 16, CREAM, f'stroke="{CHESTNUT_DARK}" stroke-width="1"'))
        for k in (0.34, 0.47):
            bx, by = polar(wrist[0], wrist[1], a, length * k)
            tips.append(f'<circle cx="{bx:.1f}" cy="{by:.1f}" r="2.1" fill="{CHESTNUT_DARK}"/>')
    out += tips
    # coverts
    out.append(f'<path d="M8,4 C14,-28 40,-58 66,-66 C80,-68 84,-54 78,-44 C66,-22 40,6 14,22 Z" fill="{CHESTNUT}" stroke="{CHESTNUT_DARK}" stroke-width="1.6" stroke-linejoin="round"/>')
    for x, y in ((26, -8), (38, -22), (50, -36), (63, -50), (42, -6), (54, -20), (66, -36), (28, 6)):
        out.append(f'<path d="M{x - 3},{y - 3} Q{x + 5},{y + 1} {x - 1},{y + 4} Z" fill="{INK}" opacity="0.75"/>')
    return f'<g transform="scale({side},1)">{"".join(out)}</g>'


def head(scale=1.0, look=0):
    """A head in profile that looks right; look turns it down."""
    return (f'<g transform="rotate({look}) scale({scale})">'
            f'<path d="M-25,22 C-32,-8 -20,-30 4,-30 C24,-30 33,-14 31,0 C28,20 12,30 -2,30 C-14,30 -22,28 -25,22 Z" fill="{SLATE}" stroke="{INK}" stroke-width="2.4"/>'
            f'<path d="M-12,28 C-12,14 -4,4 8,2 L30,2 C27,18 14,29 -2,29 Z" fill="{CREAM}"/>'
            f'<path d="M6,2 L15,2 C16,11 12,19 6,24 C2,18 2,10 6,2 Z" fill="{INK}"/>'
            f'<path d="M28,-9 C38,-9 45,-2 44,11 C40,6 35,6 29,6 C26,2 26,-5 28,-9 Z" fill="{AMBER}" stroke="{INK}" stroke-width="2.2" stroke-linejoin="round"/>'
            f'<circle cx="12" cy="-7" r="9.4" fill="{AMBER}"/><circle cx="12.6" cy="-7" r="7.2" fill="{INK}"/><circle cx="15.4" cy="-9.8" r="2.5" fill="#fff"/></g>')


def hovering(x, y, scale=1.0):
    spots = "".join(f'<path d="M{a - 2.6},{b - 3} Q{a},{b + 6} {a + 2.6},{b - 3} Z" fill="{CHESTNUT_DARK}"/>'
                    for a, b in ((-8, 10), (8, 10), (0, 18), (-11, 24), (11, 24), (-5, 33), (6, 33), (0, 44)))
    legs = "".join(f'<path d="M{a},52 v7 m-5,4 q5,-6 10,0 M{a},59 v6" fill="none" stroke="{AMBER_DARK}" stroke-width="3" stroke-linecap="round"/>' for a in (-8, 8))
    return (f'<g transform="translate({x},{y}) scale({scale}) rotate(-6)">'
            f'{tail(0, 36, 90, 84, 64)}{wing(-1)}{wing(1)}'
            f'<path d="M-22,-16 C-30,14 -22,46 0,60 C22,46 30,14 22,-16 C12,-26 -12,-26 -22,-16 Z" fill="{CREAM}" stroke="{INK}" stroke-width="2.4"/>'
            f'{spots}{legs}<g transform="translate(-1,-34)">{head(0.98, 24)}</g></g>')


def perched(x, y, scale=1.0):
    """In profile, upright, its long tail down behind the perch; the feet stand at the origin."""
    bars = "".join(f'<path d="M{a - 4},{b - 3} Q{a + 2},{b + 7} {a + 5},{b - 3} Z" fill="{INK}" opacity="0.8"/>'
                   for a, b in ((-27, -62), (-14, -54), (-34, -44), (-20, -38), (-38, -26), (-26, -20)))
    spots = "".join(f'<path d="M{a - 2.4},{b - 3} Q{a},{b + 6} {a + 2.4},{b - 3} Z" fill="{CHESTNUT_DARK}"/>'
                    for a, b in ((12, -62), (22, -54), (10, -46), (20, -38), (8, -30), (15, -22)))
    return (f'<g transform="translate({x},{y}) scale({scale})">'
            f'<g transform="translate(-24,-22)">{tail(0, 0, 112, 92, 13, 3)}</g>'
            f'<path d="M-30,-80 C-50,-50 -46,-18 -22,-4 C-4,4 18,-4 26,-24 C36,-50 30,-78 14,-92 Z" fill="{CREAM}" stroke="{INK}" stroke-width="2.4"/>'
            f'{spots}'
            f'<path d="M-30,-82 C-58,-50 -56,-16 -40,18 C-30,2 -2,-22 4,-54 C6,-74 -4,-90 -16,-92 Z" fill="{CHESTNUT}" stroke="{INK}" stroke-width="2.4" stroke-linejoin="round"/>'
            f'<path d="M-40,18 C-48,-2 -50,-18 -48,-30 L-36,-16 C-36,-4 -38,8 -40,18 Z" fill="{SLATE_DARK}"/>{bars}'
            f'<path d="M-6,-4 v8 M-6,4 l-6,3 M-6,4 l6,3 M10,-6 v10 M10,4 l-6,3 M10,4 l6,3" fill="none" stroke="{AMBER_DARK}" stroke-width="4" stroke-linecap="round"/>'
            f'<g transform="translate(2,-104)">{head(1.08, 4)}</g></g>')
