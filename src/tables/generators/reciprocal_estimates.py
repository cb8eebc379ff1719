"""Writes rcp14.inc and rsqrt14.inc: the straight lines of the 14-bit reciprocal and reciprocal square root.

A line (a, b) gives, for the 1024 values j of its segment, the significand (scale * a - b * (j - 512)) >> 9 in units of 2^-17.
The pairs below are those of the instructions VRCP14 and VRSQRT14: in each segment the only integers of this form that give all
1024 results. Before writing, the relative error of every value is checked against 2^-14 over its whole input cell, in exact
rational arithmetic.
"""

from fractions import Fraction
from pathlib import Path

# x in [1, 2), 64 segments.
RECIPROCAL = [
    (260119, 1009), (256148, 977), (252296, 949), (248558, 921), (244929, 893), (241405, 869), (237981, 843), (234652, 821),
    (231416, 797), (228266, 777), (225202, 755), (222220, 735), (219314, 717), (216485, 699), (213727, 681), (211038, 663),
    (208417, 647), (205859, 631), (203364, 617), (200929, 601), (198551, 587), (196229, 573), (193960, 561), (191743, 547),
    (189576, 535), (187458, 523), (185387, 513), (183360, 501), (181377, 491), (179439, 479), (177540, 469), (175681, 459),
    (173860, 451), (172077, 441), (170330, 433), (168618, 423), (166940, 415), (165295, 407), (163682, 399), (162101, 391),
    (160550, 385), (159027, 377), (157535, 369), (156069, 363), (154631, 357), (153219, 349), (151832, 343), (150470, 337),
    (149133, 331), (147819, 325), (146528, 319), (145260, 315), (144012, 309), (142787, 303), (141582, 299), (140397, 293),
    (139232, 289), (138085, 285), (136959, 279), (135853, 275), (134763, 271), (133689, 267), (132631, 263), (131589, 259),
]

# x in [1, 2), 32 segments.
ROOT_EVEN = [
    (520261, 1001), (512437, 955), (504953, 915), (497790, 877), (490922, 841), (484331, 807), (478001, 775), (471909, 747),
    (466046, 719), (460397, 693), (454947, 669), (449688, 647), (444606, 625), (439694, 603), (434939, 585), (430335, 567),
    (425875, 549), (421551, 533), (417355, 517), (413284, 501), (409329, 487), (405487, 473), (401748, 461), (398111, 449),
    (394571, 437), (391127, 425), (387770, 415), (384498, 403), (381307, 393), (378194, 385), (375155, 375), (372190, 367),
]

# x in [2, 4), 32 segments.
ROOT_ODD = [
    (367881, 707), (362349, 675), (357056, 647), (351992, 619), (347136, 595), (342475, 571), (337997, 549), (333693, 527),
    (329545, 509), (325551, 491), (321697, 473), (317977, 457), (314385, 441), (310910, 427), (307549, 413), (304295, 401),
    (301139, 389), (298079, 377), (295115, 365), (292237, 355), (289439, 345), (286722, 335), (284080, 325), (281508, 317),
    (279006, 309), (276569, 301), (274195, 293), (271882, 285), (269625, 279), (267425, 271), (265276, 265), (263178, 259),
]

BOUND = Fraction(1, 2**14)


def significands(lines, scale):
    """The value of every cell of the range, segment by segment, as a rational number."""
    for a, b in lines:
        for j in range(1024):
            yield Fraction((scale * a - b * (j - 512)) >> 9, 2**17)


def check_reciprocal():
    cells = 64 * 1024
    for t, y in enumerate(significands(RECIPROCAL, 256)):
        for x in (Fraction(cells + t, cells), Fraction(cells + t + 1, cells)):
            assert abs(y * x - 1) < BOUND, (t, y)


def check_root(lines, start):
    """The error e of y = (1 + e) / sqrt(x) is below the bound when y^2 x is between (1 - bound)^2 and (1 + bound)^2."""
    cells = 32 * 1024
    for t, y in enumerate(significands(lines, 128)):
        for x in (start * Fraction(cells + t, cells), start * Fraction(cells + t + 1, cells)):
            assert (1 - BOUND) ** 2 < y * y * x < (1 + BOUND) ** 2, (t, y)


def write(path, head, lines):
    rows = "".join(f"    {{{a}, {b}}},\n" for a, b in lines)
    path.write_text(f"// Written by src/tables/generators/reciprocal_estimates.py: {head}.\n{rows}")


def generate(directory):
    folder = Path(directory)
    check_reciprocal()
    check_root(ROOT_EVEN, 1)
    check_root(ROOT_ODD, 2)
    write(folder / "rcp14.inc", "a, b of 1/x over [1, 2), relative error below 2^-14", RECIPROCAL)
    write(folder / "rsqrt14.inc", "a, b of 1/sqrt(x) over [1, 2), then [2, 4), relative error below 2^-14", ROOT_EVEN + ROOT_ODD)

