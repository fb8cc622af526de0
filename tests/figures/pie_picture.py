"""A pie on the screen: its texts, its shares, and the sector at points of its picture."""

import math

import shares
from figure_line import line

SAMPLES = 96
SAMPLED_RADIUS = 0.6
ANY = "?"
SMALL = {"radius": 48, "centre": (54, 54)}
LARGE = {"radius": 112, "centre": (126, 121)}


def sector_at(angle, edges, radius):
    """The sector that holds the angle; near an edge the picture may show either."""
    reach = 1.5 / (radius * SAMPLED_RADIUS)
    if any(abs(angle - edge) < reach for edge in edges):
        return ANY
    return next((str(i) for i, edge in enumerate(edges) if angle < edge), "0")


def pixel_angle(i, form):
    """The angle of the middle of the pixel that is sampled."""
    angle = (i + 0.5) * 2 * math.pi / SAMPLES
    reach, (left, top) = form["radius"] * SAMPLED_RADIUS, form["centre"]
    x = math.floor(left + math.cos(angle) * reach) + 0.5 - left
    y = math.floor(top - math.sin(angle) * reach) + 0.5 - top
    return math.atan2(-y, x) % (2 * math.pi)


def sectors(percents, form):
    """The sector at each sample; 0 where there is no pie. A negative share has none to tell."""
    if percents is None:
        return "0" * SAMPLES
    if not all(0 <= share <= 100 for share in percents):
        return ANY * SAMPLES
    edges = [shares.angle(0.001)] + [shares.angle(to) for _, to in shares.slices(percents)]
    return "".join(sector_at(pixel_angle(i, form), edges, form["radius"]) for i in range(SAMPLES))


class Pie:
    """Its texts stay where nothing is drawn."""

    def __init__(self, what, form, no_data, labels=None):
        self.what, self.form, self.no_data = what, form, no_data
        self.labels = labels or no_data

    def show(self, has_data, percents):
        """Percents of None with data: calories without any of the three."""
        if percents is not None:
            self.labels = shares.labels(percents)
        elif not has_data:
            self.labels = self.no_data
        return line(self.what, *self.labels, *(percents or (0, 0, 0)),
                    sectors(percents, self.form))
