"""A cat that walks on the spot: each leg swings back on the ground and forward in the air, one after another."""
import math

from stage import CREAM, INK, TAU, Stage

SIZE, FRAMES, DELAY = (54, 54), 16, 6
FUR, FUR_FAR, STRIPE, EDGE = "#f0a04a", "#c97a2c", "#b8621c", "#4a2410"


def leg(s, hip_x, hip_y, k, fill, front):
    """Hip, knee and paw for a step time k; the first 0.6 of the step stand on the ground."""
    k %= 1
    if k < 0.6:
        foot_x, lift = 6.2 - 12.4 * k / 0.6, 0
    else:
        a = (k - 0.6) / 0.4
        foot_x, lift = -6.2 + 12.4 * (a * a * (3 - 2 * a)), 4.8 * math.sin(math.pi * a)
    foot = (hip_x + foot_x, 48.6 - lift)
    bend = (1.4 if front else -2.6) + lift * (0.5 if front else 0.4)
    knee = ((hip_x + foot[0]) / 2 + bend, (hip_y + foot[1]) / 2)
    toe = (foot[0] + 1.9, foot[1] + 0.2)
    points = [(hip_x, hip_y), knee, foot, toe]
    s.stroke(points, fill, 3.9, EDGE, 1.25)


def draw(s: Stage, t):
    bob = 0.8 * math.cos(2 * TAU * t)
    y = 30 + bob
    # the tail waves behind
    wave = math.sin(TAU * t)
    tail = [(11, y + 1)]
    for i in range(1, 13):
        k = i / 12
        tail.append((11 - 6.6 * math.sin(k * 1.9) + 2.4 * wave * k * k, y + 1 - 19 * k + 2 * math.sin(TAU * (t - k * 0.4)) * k))
    s.stroke(tail, FUR, 3.3, EDGE, 1.25)
    s.stroke(tail[-3:], STRIPE, 3.3)
    leg(s, 34.5, y + 5, t + 0.25, FUR_FAR, True)
    leg(s, 15.5, y + 5, t + 0.75, FUR_FAR, False)
    leg_body = f"M 10 {y + 2} C 9 {y - 6} 16 {y - 7.5} 24 {y - 6.6} C 31 {y - 7.5} 39 {y - 7} 39 {y} C 39.5 {y + 6} 36 {y + 8.4} 31 {y + 8} C 25 {y + 6.6} 20 {y + 9.4} 15 {y + 8.8} C 12 {y + 8} 10 {y + 6} 10 {y + 2} Z"
    s.path(leg_body, FUR, EDGE, 2.5)
    s.path(leg_body, FUR)
    for x in (17.5, 22.5, 27.5):
        s.path(f"M {x} {y - 5.6} Q {x - 1.2} {y - 2} {x + 0.4} {y + 0.8}", None, STRIPE, 2.0)
    leg(s, 36, y + 5, t + 0.75, FUR, True)
    leg(s, 14.5, y + 5, t + 0.25, FUR, False)
    s.ellipse(34.5, y + 3.6, 3.6, 4.0, FUR)
    s.ellipse(14.8, y + 3.6, 3.8, 4.2, FUR)
    with s.at(41, y - 9.5 + 0.9 * math.cos(2 * TAU * t + 0.9), 3 * math.sin(2 * TAU * t)):
        for side in (-1, 1):
            s.path(f"M {side * 8.6} -2 L {side * 8.2} -12.4 L {side * 1.8} -7.6 Z", FUR, EDGE, 1.7)
            s.path(f"M {side * 6.9} -6 L {side * 6.9} -9.4 L {side * 4.6} -7.4 Z", "#ffb8a0")
        s.ellipse(0, 0, 10, 8.7, FUR, EDGE, 1.8)
        s.path("M -2.6 -7.4 L -2.2 -4.6 M 0.2 -7.8 L 0.2 -4.4 M 3 -7.4 L 2.6 -4.6", None, STRIPE, 1.5)
        s.ellipse(0.6, 3.7, 5.2, 3.7, CREAM)
        for x in (-4, 4.6):
            s.ellipse(x, -0.8, 2.1, 2.6, "#ffffff")
            s.ellipse(x + 0.4, -0.6, 1.35, 2.0, INK)
        s.path("M -0.8 1.8 L 2 1.8 L 0.6 3.4 Z", "#e0705a", "#a03c2c", 0.7)
        s.path("M 0.6 3.6 Q -0.6 5.6 -2.2 4.8 M 0.6 3.6 Q 1.8 5.6 3.4 4.8", None, EDGE, 0.9)
