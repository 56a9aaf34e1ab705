# SPDX-License-Identifier: GPL-3.0-or-later
"""Which maps there are: the regions, the styles, and the pairs of both that are shipped."""

from dataclasses import dataclass, field

from geo import LambertAzimuthal, LambertConic, Patterson


@dataclass(frozen=True)
class Region:
    centre: tuple           # longitude, latitude of the picture's middle
    degrees_wide: float     # degrees of longitude between the picture's sides, at the middle latitude
    detail: str             # Natural Earth scale, "10m" or "50m"
    graticule: float        # degrees between its lines
    parallels: tuple = ()   # standard parallels of a conic map; a sixth of the height inside the edges serves
    flat: bool = False      # a cylindrical map, for the whole world
    focus: tuple = ()       # countries set off from their neighbours
    states: tuple = ()      # countries whose states are drawn
    smallest_island: float = 0.8  # outlines below this area in square pixels are left out
    rivers: float = 0.0     # width in pixels; 0 draws none
    size: tuple = (800, 600)

    def projection(self):
        """Conic for a country or a part of a continent, azimuthal for a continent, cylindrical for the world."""
        if self.flat:
            return Patterson(self.centre[0])
        if self.parallels:
            return LambertConic(*self.centre, *self.parallels)
        return LambertAzimuthal(*self.centre)


@dataclass(frozen=True)
class Style:
    shallow: tuple          # sea at the coast
    deep: tuple             # open sea
    land: tuple             # pairs (distance from the equator in degrees, colour)
    climate: dict           # kind: (colour, share)
    rock: tuple             # colour and share mixed into mountains
    relief: float           # strength of the mountains' light and shade
    other_land: tuple       # colour and share mixed into land outside the region's focus
    coast: tuple            # colour and opacity
    border: tuple
    state: tuple
    river: tuple
    graticule_sea: tuple
    graticule_land: tuple
    rim: tuple              # thin light along the coast, inside the land
    texture: float          # strength of the slow variation of land colour
    coast_width: float = 0.8
    border_width: float = 0.8
    glow: tuple = field(default=((5, 0.35), (16, 0.35), (48, 0.30)))  # reach in pixels, weight


REGIONS = {
    "europe": Region(centre=(14.0, 53.4), degrees_wide=89, parallels=(40, 66), detail="50m", graticule=10,
                     smallest_island=1.2),
    "italy": Region(centre=(12.4, 41.95), degrees_wide=19.6, parallels=(38, 46), detail="10m", graticule=2,
                    focus=("Italy", "San Marino", "Vatican"), rivers=0.8),
    "iberia": Region(centre=(-3.2, 40.0), degrees_wide=17.4, parallels=(37, 43), detail="10m", graticule=2,
                     focus=("Spain", "Portugal", "Andorra", "Gibraltar"), rivers=0.8),
    "france": Region(centre=(2.4, 46.55), degrees_wide=20.0, parallels=(43, 50), detail="10m", graticule=2,
                     focus=("France", "Monaco"), rivers=0.8),
    "british-isles": Region(centre=(-4.4, 54.9), degrees_wide=26.5, parallels=(51.5, 58.5), detail="10m", graticule=2,
                            focus=("United Kingdom", "Ireland", "Isle of Man"), rivers=0.8),
    "central-europe": Region(centre=(12.6, 49.3), degrees_wide=25.5, parallels=(46, 53), detail="10m", graticule=2,
                             rivers=0.8),
    "scandinavia": Region(centre=(17.4, 63.3), degrees_wide=48, parallels=(58, 69), detail="50m", graticule=5,
                          smallest_island=1.0, rivers=0.7),
    "mediterranean": Region(centre=(15.2, 38.0), degrees_wide=47, parallels=(32, 44), detail="50m", graticule=5,
                            rivers=0.7, size=(800, 520)),
    "north-america": Region(centre=(-97.0, 44.5), degrees_wide=136, detail="50m", graticule=10, states=("USA", "CAN"),
                            smallest_island=1.5),
    "united-states": Region(centre=(-96.6, 38.4), degrees_wide=62, parallels=(29.5, 45.5), detail="50m", graticule=5,
                            focus=("United States of America",), states=("USA", "CAN"), rivers=0.7, size=(800, 540)),
    "south-america": Region(centre=(-59.5, -21.8), degrees_wide=78, detail="50m", graticule=10, smallest_island=1.2,
                            rivers=0.7, size=(600, 600)),
    "africa": Region(centre=(18.0, 1.5), degrees_wide=84, detail="50m", graticule=10, smallest_island=1.2, rivers=0.7,
                     size=(680, 600)),
    "asia": Region(centre=(91.0, 37.5), degrees_wide=138, detail="50m", graticule=10, smallest_island=1.4),
    "australia": Region(centre=(136.0, -27.0), degrees_wide=62, detail="50m", graticule=5, states=("AUS",),
                        smallest_island=1.0, rivers=0.6),
    "world": Region(centre=(11.0, 10.6), degrees_wide=360, flat=True, detail="50m", graticule=30, smallest_island=1.5,
                    size=(800, 380)),
}

STYLES = {
    "natural": Style(
        shallow=(216, 234, 243), deep=(169, 204, 226),
        land=((0, (215, 229, 194)), (14, (226, 231, 201)), (24, (238, 231, 205)), (35, (237, 231, 205)),
              (41, (229, 232, 203)), (48, (217, 230, 199)), (58, (206, 225, 196)), (66, (214, 227, 209)),
              (74, (228, 233, 226))),
        climate={"dry": ((244, 229, 197), 0.95), "wet": ((193, 219, 178), 0.85), "high": ((228, 222, 207), 0.8),
                 "ice": ((247, 250, 251), 0.95)},
        rock=((214, 200, 172), 0.50), relief=26.0,
        other_land=((238, 236, 226), 0.62),
        coast=((104, 142, 160), 0.85), border=((140, 132, 118), 0.80), state=((150, 146, 126), 0.45),
        river=((137, 184, 212), 0.75),
        graticule_sea=((255, 255, 255), 0.45), graticule_land=((120, 140, 110), 0.13),
        rim=((255, 255, 250), 0.55), texture=7.0),
    "light": Style(
        shallow=(236, 244, 249), deep=(208, 226, 238),
        land=((0, (247, 246, 240)),),
        climate={"ice": ((255, 255, 255), 0.7)},
        rock=((228, 226, 220), 0.45), relief=11.0,
        other_land=((240, 240, 238), 0.80),
        coast=((138, 160, 176), 0.9), border=((166, 170, 172), 0.9), state=((172, 176, 176), 0.5),
        river=((186, 212, 228), 0.8),
        graticule_sea=((255, 255, 255), 0.6), graticule_land=((150, 160, 165), 0.12),
        rim=((255, 255, 255), 0.5), texture=2.0),
    "dark": Style(
        shallow=(44, 70, 96), deep=(24, 42, 64),
        land=((0, (74, 90, 92)),),
        climate={"ice": ((112, 126, 132), 0.6)},
        rock=((98, 108, 108), 0.45), relief=16.0,
        other_land=((58, 72, 80), 0.75),
        coast=((150, 184, 204), 0.7), border=((158, 170, 166), 0.55), state=((150, 164, 160), 0.28),
        river=((62, 96, 126), 0.8),
        graticule_sea=((160, 190, 215), 0.16), graticule_land=((200, 220, 220), 0.08),
        rim=((120, 140, 140), 0.35), texture=4.0),
}

# Lines of control that most states do not recognise as borders; an arc whose middle lies in such a box is not drawn.
UNDRAWN_BORDERS = (
    (32.5, 45.6, 36.0, 46.4),  # Crimea's neck
    (32.3, 34.9, 34.2, 35.3),  # across Cyprus
    (47.9, 8.2, 49.4, 11.4),   # within Somalia
)

MAPS = {name + ".jpg": (name, "natural") for name in REGIONS}
MAPS.update({f"{name}-{style}.jpg": (name, style) for name in ("europe", "italy") for style in ("light", "dark")})
