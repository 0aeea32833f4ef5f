"""What the animations share: colours, motion and shapes on a cairo context.

GIF knows no half-transparent pixel, so every shape is closed by an outline in its own darker colour: whatever
lies behind, the edge is a line that belongs to the picture."""
import math

import cairo


def rgb(text):
    return tuple(int(text[i:i + 2], 16) / 255 for i in (1, 3, 5))


TEAL_DARK, TEAL, TEAL_MID, TEAL_PALE = "#0b3a42", "#12606b", "#1f8a8f", "#a6d8d4"
AMBER, AMBER_PALE, AMBER_DARK = "#f4a62a", "#ffcf6b", "#b86a10"
CHESTNUT, CHESTNUT_DARK = "#b3582c", "#7c3718"
CREAM, CREAM_DARK = "#fff4dc", "#d9b878"
SLATE, SLATE_DARK = "#5d7f8e", "#35525f"
INK, WHITE = "#14262b", "#ffffff"
TAU = 2 * math.pi


def scatter(i, salt=0.0):
    """An even spread over 0 to 1 that looks like chance and is the same every time."""
    return (i * 0.6180339887 + salt * 0.7548776662) % 1.0


def ease(t):
    t = min(1.0, max(0.0, t))
    return t * t * (3 - 2 * t)


def mix(a, b, t):
    t = min(1.0, max(0.0, t))
    a, b = rgb(a), rgb(b)
    return "#" + "".join(f"{round((x + (y - x) * t) * 255):02x}" for x, y in zip(a, b))


class Stage:
    def __init__(self, width, height, zoom):
        self.surface = cairo.ImageSurface(cairo.FORMAT_ARGB32, width * zoom, height * zoom)
        self.c = cairo.Context(self.surface)
        self.c.scale(zoom, zoom)
        self.c.set_line_join(cairo.LINE_JOIN_ROUND)
        self.c.set_line_cap(cairo.LINE_CAP_ROUND)
        self.width, self.height = width, height

    # A group of shapes in its own place: with stage.at(x, y, angle, sx, sy):
    def at(self, x=0, y=0, angle=0, sx=1, sy=None):
        return _Place(self.c, x, y, angle, sx, sx if sy is None else sy)

    def paint(self, fill=None, edge=None, width=1.5):
        if fill:
            self.c.set_source_rgb(*rgb(fill))
            self.c.fill_preserve() if edge else self.c.fill()
        if edge:
            self.c.set_source_rgb(*rgb(edge))
            self.c.set_line_width(width)
            self.c.stroke()

    def ellipse(self, x, y, rx, ry, fill=None, edge=None, width=1.5):
        if min(abs(rx), abs(ry)) < 0.02:
            return
        self.c.new_path()
        self.c.save()
        self.c.translate(x, y)
        self.c.scale(rx, ry)
        self.c.arc(0, 0, 1, 0, TAU)
        self.c.close_path()
        self.c.restore()
        self.paint(fill, edge, width)

    def circle(self, x, y, r, fill=None, edge=None, width=1.5):
        self.ellipse(x, y, r, r, fill, edge, width)

    def path(self, d, fill=None, edge=None, width=1.5):
        """A path in the manner of SVG: M, L, C, Q, Z with absolute coordinates."""
        self.c.new_path()
        words = d.replace(",", " ").split()
        i, command = 0, ""
        count = {"M": 2, "L": 2, "C": 6, "Q": 4, "Z": 0}
        while i < len(words):
            if words[i] in count:
                command = words[i]
                i += 1
            n = count[command]
            v = [float(w) for w in words[i:i + n]]
            i += n
            if command == "M":
                self.c.move_to(*v)
                command = "L"
            elif command == "L":
                self.c.line_to(*v)
            elif command == "C":
                self.c.curve_to(*v)
            elif command == "Q":
                x0, y0 = self.c.get_current_point()
                self.c.curve_to(x0 + (v[0] - x0) * 2 / 3, y0 + (v[1] - y0) * 2 / 3,
                                v[2] + (v[0] - v[2]) * 2 / 3, v[3] + (v[1] - v[3]) * 2 / 3, v[2], v[3])
            else:
                self.c.close_path()
        self.paint(fill, edge, width)

    def polygon(self, points, fill=None, edge=None, width=1.5, close=True):
        self.c.new_path()
        for p in points:
            self.c.line_to(*p)
        if close:
            self.c.close_path()
        self.paint(fill, edge, width)

    def stroke(self, points, colour, width, edge=None, edge_width=1.2):
        """A line with round ends, and around it the same line in its darker colour."""
        if edge:
            self.polygon(points, None, edge, width + 2 * edge_width, close=False)
        self.polygon(points, None, colour, width, close=False)


class _Place:
    def __init__(self, c, x, y, angle, sx, sy):
        self.c, self.move = c, (x, y, angle, sx, sy)

    def __enter__(self):
        x, y, angle, sx, sy = self.move
        self.c.save()
        self.c.translate(x, y)
        self.c.rotate(math.radians(angle))
        self.c.scale(sx, sy)

    def __exit__(self, *_):
        self.c.restore()
