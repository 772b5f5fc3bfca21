"""The dives of the demo logbook: one diver from the first training dives to the first trimix dives.

Places are real towns and islands; the diver, the buddies, the boats, the clubs and the makers are invented.
"""

from __future__ import annotations

from dataclasses import dataclass
from typing import NamedTuple


class Place(NamedTuple):
    lieu: str
    pays: str
    code: str
    gps: str
    club: str
    tidal: bool = False
    altitude: int = 0


PLACES = {
    "marseille": Place("Marseille", "France", "FRA", "43°12.700' N 005°20.100' E", "Les Palmes du Frioul"),
    "lavandou": Place("Le Lavandou", "France", "FRA", "43°00.300' N 006°24.900' E", "Abyssea Plongée"),
    "trebeurden": Place("Trébeurden", "France", "FRA", "48°46.500' N 003°38.200' W", "Club des Roches Roses", True),
    "belleile": Place("Belle-Île", "France", "FRA", "47°20.900' N 003°09.100' W", "Ar Morgan Plongée", True),
    "stmalo": Place("Saint-Malo", "France", "FRA", "48°42.300' N 002°06.500' W", "Club des Roches Roses", True),
    "annecy": Place("Lac d’Annecy", "France", "FRA", "45°51.600' N 006°10.500' E", "Lac et Bulles", altitude=447),
    "carriere": Place("Carrière du Moulin", "France", "FRA", "47°22.100' N 001°10.300' W", "Les Palmes du Frioul"),
    "estartit": Place("L’Estartit", "Espagne", "ESP", "42°02.900' N 003°13.500' E", "Mar Blau"),
    "hurghada": Place("Hurghada", "Égypte", "EGY", "27°34.800' N 033°55.700' E", "Corail Bleu"),
    "gozo": Place("Gozo", "Malte", "MLT", "36°03.200' N 014°11.300' E", "Calypso Bay Divers"),
    "scapa": Place("Scapa Flow", "Royaume-Uni", "GBR", "58°53.200' N 003°10.900' W", "Hoy Sound Diving", True),
    "rangiroa": Place("Rangiroa", "Polynésie française", "PYF", "14°58.500' S 147°37.800' W", "Tiputa Lagon"),
}

# The tags of the menus that the dives use.
CLEAR, CLOUDY, FOGGY, RAINY = 0, 1, 2, 3
NO_CURRENT, WEAK, MODERATE, STRONG = 0, 1, 2, 3
EXCELLENT, VERY_GOOD, GOOD, MEDIUM, BAD, VERY_BAD, EXCEPTIONAL = 0, 1, 2, 3, 4, 5, 8
WRECK, RECREATIONAL, PHOTO, TEK, DRIFT, TRAINING, BIOLOGY, QUARRY = 0, 1, 3, 4, 9, 11, 12, 13
WET, DRY, SHORTY, SEMI_DRY, TROPICAL = 0, 1, 2, 4, 6
AIR_TABLES, NITROX_TABLES, COMPUTER = 0, 1, 2


@dataclass
class Row:
    """One dive as planned; the rest comes out of the simulation."""

    date: str
    time: str
    place: str
    site: str
    kind: int
    legs: list[tuple[float, float]]  # depth, minutes
    water: int
    air: int
    buddies: str
    visibility: int = GOOD
    current: int = NO_CURRENT
    weather: int = CLEAR
    wind: tuple[int, int] = (0, 0)  # sector tag 1 to 8 from north by east; Beaufort force
    suit: int = WET
    weight: float = 6.0
    o2: int = 21
    he: int = 0
    litres: int = 15
    start: int = 200
    sac: float = 18.0
    interval: int = 0  # sampling code
    wreck: str = ""
    boat: str = ""
    night: bool = False
    difficulty: int = 1
    coefficient: int = 0
    tide: int = 0
    unforgettable: bool = False
    too_fast: bool = False
    breaks_ceiling: bool = False
    stages: tuple[tuple[int, float, int, float], ...] = ()  # O2, litres, bar, depth of the switch
    deco: int = COMPUTER
    notes: str = ""


EAN50, OXYGEN = (50, 11.0, 200, 21.0), (100, 7.0, 190, 6.0)

ROWS = [
    Row(
        "2011-05-14", "10:20", "marseille", "Calanque de Port-Pin", TRAINING, [(5, 14), (6, 12)], 16, 21,
        "Nadège (monitrice)", MEDIUM, sac=23, litres=12, difficulty=0, interval=3, deco=AIR_TABLES,
        too_fast=True,
        notes="Première plongée en mer ! Vidage de masque et stabilisation. Un peu trop de plomb.",
    ),
    Row(
        "2011-05-14", "15:05", "marseille", "Calanque de Port-Pin", TRAINING, [(8, 12), (6, 14)], 16, 22,
        "Nadège (monitrice)", MEDIUM, sac=22, litres=12, difficulty=0, interval=3, deco=AIR_TABLES,
        notes="Échange d’embout, remontée gonflée.",
    ),
    Row(
        "2011-05-15", "09:45", "marseille", "Île Maïre, les Pharillons", TRAINING, [(12, 16), (8, 12)], 16, 20,
        "Nadège, Karim", GOOD, WEAK, sac=22, litres=12, difficulty=1, interval=3, deco=AIR_TABLES, wind=(8, 3),
        boat="Garlaban",
    ),
    Row(
        "2011-06-25", "10:00", "marseille", "Tiboulen du Frioul", TRAINING, [(17, 18), (10, 10)], 19, 26,
        "Nadège, Karim, Solène", GOOD, sac=21, litres=12, interval=3, deco=AIR_TABLES, boat="Garlaban",
        notes="Niveau 1 validé, arrosé au port.",
    ),
    Row(
        "2011-06-26", "09:30", "marseille", "Île Plane, grotte à Corail", RECREATIONAL, [(16, 20), (9, 14)], 19,
        27, "Karim, Solène", VERY_GOOD, sac=20, interval=1, deco=AIR_TABLES, boat="Garlaban",
        notes="Corail rouge sous la voûte, deux mostelles.",
    ),
    Row(
        "2011-08-16", "11:10", "trebeurden", "Roche Losquet", RECREATIONAL, [(15, 18), (9, 18)], 15, 19,
        "Solène, Yann", MEDIUM, WEAK, CLOUDY, (7, 3), sac=20, interval=1, deco=AIR_TABLES, boat="Ti Morlo",
        coefficient=74, tide=1, weight=7.0,
        notes="Laminaires et un homard sous la roche.",
    ),
    Row(
        "2011-08-17", "12:00", "trebeurden", "Le Crapaud", BIOLOGY, [(18, 20), (10, 12)], 15, 18, "Yann",
        MEDIUM, MODERATE, CLOUDY, (6, 4), sac=20, interval=1, deco=AIR_TABLES, boat="Ti Morlo", coefficient=81,
        tide=1, weight=7.0,
        notes="Alcyons, roses de mer, coquettes. Coef. un peu fort.",
    ),
    Row(
        "2012-05-18", "10:30", "lavandou", "Pointe du Vaisseau", RECREATIONAL, [(20, 22), (10, 16)], 16, 21,
        "Karim", VERY_GOOD, sac=19, interval=1, boat="Gecko", difficulty=2,
        notes="Premier ordinateur : fini les tables.",
    ),
    Row(
        "2012-05-19", "09:00", "lavandou", "La Gabinière", RECREATIONAL, [(28, 12), (18, 14), (8, 10)], 16, 22,
        "Karim, Inès", EXCELLENT, MODERATE, sac=19, interval=1, boat="Gecko", difficulty=2, unforgettable=True,
        notes="Une dizaine de mérous peu farouches, barracudas en banc.",
    ),
    Row(
        "2012-05-19", "21:45", "lavandou", "La Fourmigue", RECREATIONAL, [(14, 22), (8, 18)], 16, 18, "Inès",
        GOOD, sac=18, interval=1, boat="Gecko", night=True, difficulty=2,
        notes="Première de nuit : poulpes, seiche, murènes en chasse.",
    ),
    Row(
        "2012-07-07", "10:15", "annecy", "Roc de Chère", TRAINING, [(20, 18), (12, 12)], 14, 24, "Bastien", BAD,
        sac=19, interval=1, suit=SEMI_DRY, weight=7.5, difficulty=2,
        notes="Thermocline à 9 m, visibilité 4 m en dessous.",
    ),
    Row(
        "2012-08-21", "11:40", "belleile", "Pointe des Poulains", RECREATIONAL, [(22, 18), (12, 16)], 17, 22,
        "Yann, Solène", GOOD, WEAK, CLEAR, (8, 3), sac=18, interval=1, boat="Skrilh", coefficient=66, tide=2,
        difficulty=2,
    ),
    Row(
        "2012-08-22", "12:20", "belleile", "Kerlec, tombant sud", WRECK, [(24, 16), (14, 14)], 17, 23, "Yann",
        GOOD, WEAK, CLEAR, (8, 2), sac=18, interval=1, boat="Skrilh", coefficient=58, tide=2,
        wreck="Chalutier du Donnant", difficulty=2,
        notes="Il reste la chaudière et l’étambot ; trois congres.",
    ),
    Row(
        "2013-03-10", "11:00", "carriere", "Fosse nord", QUARRY, [(20, 14), (12, 12), (6, 8)], 7, 9,
        "Bastien, Inès", VERY_BAD, sac=19, interval=2, suit=SEMI_DRY, weight=8.0, difficulty=2, weather=RAINY,
        notes="Remise en palmes. Exercices d’assistance, eau à 7 degrés au fond.",
    ),
    Row(
        "2013-06-08", "09:20", "marseille", "Le Liban", WRECK, [(34, 19), (24, 6)], 17, 24, "Karim, Nadège",
        VERY_GOOD, WEAK, sac=17, interval=0, boat="Garlaban", wreck="Le Liban", difficulty=2,
        unforgettable=True,
        notes="L’étrave couverte de gorgones. Congre dans le treuil.",
    ),
    Row(
        "2013-06-09", "09:15", "marseille", "Impérial du Milieu", RECREATIONAL, [(38, 15), (24, 5)], 17, 25,
        "Nadège", VERY_GOOD, WEAK, sac=17, interval=0, boat="Garlaban", difficulty=3,
        notes="Premiers paliers obligatoires, gorgones géantes.",
    ),
    Row(
        "2013-07-20", "16:30", "estartit", "Îles Medes, la Vache", RECREATIONAL, [(24, 20), (12, 18)], 20, 28,
        "Inès", VERY_GOOD, sac=17, interval=0, boat="Xarxa", suit=WET, weight=5.0,
        notes="Tunnel traversé de bout en bout, mérous dans le bleu.",
    ),
    Row(
        "2013-07-21", "10:10", "estartit", "Îles Medes, le Carall Bernat", PHOTO, [(26, 18), (15, 18)], 20, 28,
        "Inès", EXCELLENT, MODERATE, sac=17, interval=0, boat="Xarxa", weight=5.0, too_fast=True,
        notes="Photos de nudibranches. Remontée trop rapide vers 10 m.",
    ),
    Row(
        "2014-02-15", "08:30", "hurghada", "Abu Ramada", RECREATIONAL, [(22, 14), (14, 16), (6, 6)], 22, 20,
        "Solène, Marc", VERY_GOOD, WEAK, sac=16, interval=0, litres=12, boat="Sindbad II", suit=TROPICAL,
        weight=5.0,
        notes="Nuages de glassfish, une tortue imbriquée.",
    ),
    Row(
        "2014-02-15", "13:45", "hurghada", "Giftun, petit tombant", DRIFT, [(24, 13), (15, 16), (6, 4)], 22, 22,
        "Solène, Marc", EXCELLENT, STRONG, sac=16.5, interval=0, litres=12, boat="Sindbad II", suit=TROPICAL,
        weight=5.0, difficulty=2,
    ),
    Row(
        "2014-02-16", "09:00", "hurghada", "Abu Nuhas", WRECK, [(25, 20), (12, 12)], 22, 21, "Marc", VERY_GOOD,
        WEAK, sac=16.5, interval=0, litres=12, boat="Sindbad II", suit=TROPICAL, weight=5.0, wreck="Giannis D",
        difficulty=2, unforgettable=True,
        notes="Salle des machines inclinée à 45 degrés, vertige garanti.",
    ),
    Row(
        "2014-02-16", "18:20", "hurghada", "Abu Nuhas, récif", RECREATIONAL, [(12, 26), (7, 20)], 22, 18,
        "Marc, Solène", GOOD, sac=16, interval=0, litres=12, boat="Sindbad II", suit=TROPICAL, weight=5.0,
        night=True,
        notes="Danseuse espagnole de 30 cm, poissons-lions en chasse dans les phares.",
    ),
    Row(
        "2014-05-24", "10:00", "lavandou", "Pointe de Montrémian", TRAINING, [(26, 22), (12, 14)], 16, 21,
        "Karim", GOOD, sac=17, interval=0, o2=32, boat="Gecko", deco=NITROX_TABLES, difficulty=2,
        notes="Formation nitrox, analyse : 32,1 %.",
    ),
    Row(
        "2014-05-25", "09:30", "lavandou", "Le Grec", WRECK, [(30, 18), (20, 10), (8, 6)], 16, 22,
        "Karim, Inès", GOOD, WEAK, sac=17, interval=0, o2=31, boat="Gecko", wreck="Le Grec", difficulty=2,
        notes="Pont principal seulement ; la cale avant est ouverte.",
    ),
    Row(
        "2014-08-11", "11:30", "trebeurden", "Les Triagoz", RECREATIONAL, [(27, 20), (14, 16)], 15, 19, "Yann",
        GOOD, MODERATE, CLOUDY, (6, 3), sac=16, interval=0, o2=32, boat="Ti Morlo", suit=SEMI_DRY, weight=7.0,
        coefficient=69, tide=1, difficulty=2,
        notes="Gorgones et un banc de tacauds ; un phoque au palier.",
    ),
    Row(
        "2014-08-12", "12:15", "stmalo", "La Hollandaise", WRECK, [(24, 24), (10, 10)], 16, 20, "Yann, Solène",
        MEDIUM, WEAK, CLOUDY, (5, 3), sac=16, interval=0, o2=32, boat="Ti Morlo", suit=SEMI_DRY, weight=7.0,
        coefficient=77, tide=2, wreck="La Hollandaise", difficulty=2,
    ),
    Row(
        "2015-02-07", "10:40", "annecy", "Le France", WRECK, [(40, 12), (22, 8), (9, 8)], 6, 3, "Bastien",
        MEDIUM, weather=FOGGY, sac=16, interval=0, litres=18, suit=DRY, weight=9.0, wreck="Le France",
        difficulty=3,
        notes="Étanche obligatoire : 5 degrés à partir de 20 m. Roue à aubes impressionnante.",
    ),
    Row(
        "2015-05-02", "09:10", "gozo", "Blue Hole", RECREATIONAL, [(32, 14), (20, 14), (8, 12)], 17, 22,
        "Inès, Bastien", EXCEPTIONAL, sac=16, interval=5, o2=30, suit=SEMI_DRY, difficulty=2,
        unforgettable=True,
        notes="Lumière irréelle en sortant par l’arche.",
    ),
    Row(
        "2015-05-02", "14:00", "gozo", "Reqqa Point", PHOTO, [(28, 18), (16, 16), (7, 10)], 17, 23, "Inès",
        EXCELLENT, WEAK, sac=16, interval=5, o2=30, suit=SEMI_DRY, difficulty=2,
    ),
    Row(
        "2015-05-03", "10:00", "gozo", "Xatt l-Ahmar", WRECK, [(38, 18), (22, 8), (10, 6)], 17, 22, "Bastien",
        EXCELLENT, sac=16, interval=5, o2=26, litres=18, suit=SEMI_DRY, wreck="Karwela", difficulty=2,
        notes="Escalier central ; palier tranquille le long du tombant.",
    ),
    Row(
        "2015-07-18", "08:45", "marseille", "Le Dalton, face sud", TEK, [(45, 18)], 16, 27, "Karim, Nadège",
        VERY_GOOD, WEAK, sac=15.5, interval=0, litres=24, suit=DRY, weight=4.0, boat="Garlaban", difficulty=3,
        stages=(EAN50, ),
        notes="Première avec bloc de déco : Nx 50 à partir de 21 m.",
    ),
    Row(
        "2015-07-19", "08:30", "marseille", "Banc des Blauquières", TEK, [(50, 16)], 15, 27, "Karim", VERY_GOOD,
        MODERATE, sac=15.5, interval=0, litres=24, suit=DRY, weight=4.0, boat="Garlaban", difficulty=3,
        stages=(EAN50, ), breaks_ceiling=True,
        notes="Houle au palier de 3 m, remonté brièvement au-dessus.",
    ),
    Row(
        "2015-09-12", "10:50", "scapa", "Gutter Sound", WRECK, [(34, 24)], 12, 13, "Bastien, Ewan", MEDIUM,
        WEAK, CLOUDY, (7, 4), sac=16, interval=0, o2=29, litres=24, suit=DRY, weight=4.0, boat="Kelda",
        wreck="Croiseur Dresden", coefficient=0, tide=1, difficulty=3,
        notes="Immense, couché sur le flanc. Tourelle arrière.",
    ),
    Row(
        "2015-09-12", "15:40", "scapa", "Barrière nº 3", WRECK, [(14, 30), (9, 10)], 12, 12, "Ewan", MEDIUM,
        NO_CURRENT, RAINY, (7, 5), sac=15.5, interval=0, o2=32, litres=15, suit=DRY, weight=10.0,
        wreck="Blockship nº 3", tide=2, difficulty=1,
    ),
    Row(
        "2016-03-26", "09:10", "rangiroa", "Passe de Tiputa", DRIFT, [(32, 14), (20, 14)], 28, 30, "Inès",
        EXCEPTIONAL, STRONG, sac=15.5, interval=7, litres=12, suit=SHORTY, weight=2.0, boat="Moana",
        difficulty=3, unforgettable=True, too_fast=True,
        notes="Mur de requins gris à 30 m, dauphins à l’entrée de la passe !",
    ),
    Row(
        "2016-03-27", "07:50", "rangiroa", "L’Éolienne", RECREATIONAL, [(26, 15), (15, 16), (7, 6)], 28, 29,
        "Inès", EXCELLENT, WEAK, sac=15.5, interval=7, o2=32, litres=12, suit=SHORTY, weight=2.0, boat="Moana",
    ),
    Row(
        "2016-06-04", "08:40", "lavandou", "Le Donator", WRECK, [(48, 20)], 16, 23, "Karim, Nadège", VERY_GOOD,
        MODERATE, sac=15, interval=0, litres=24, start=210, suit=DRY, weight=4.0, boat="Gecko",
        wreck="Le Donator", stages=(EAN50, ), difficulty=3, unforgettable=True,
        notes="De l’hélice à la proue, gorgones sur les bastingages.",
    ),
    Row(
        "2016-06-11", "09:00", "lavandou", "Sec du Langoustier", TEK, [(52, 20)], 16, 24, "Nadège (formatrice)",
        GOOD, WEAK, sac=15, interval=0, o2=21, he=35, litres=24, start=220, suit=DRY, weight=4.0, boat="Gecko",
        stages=(EAN50, ), difficulty=4,
        notes="Formation trimix, plongée 1 : tête claire à 52 m.",
    ),
    Row(
        "2016-06-12", "09:10", "lavandou", "Épave du Rubis", TEK, [(41, 22)], 16, 24,
        "Nadège (formatrice), Karim", VERY_GOOD, WEAK, sac=15, interval=0, o2=21, he=35, litres=24, start=210,
        suit=DRY, weight=4.0, boat="Gecko", wreck="Le Rubis", stages=(EAN50, ), difficulty=3,
        notes="Sous-marin posé droit sur le sable, visibilité 25 m.",
    ),
    Row(
        "2016-06-18", "08:20", "marseille", "Sec du Planier", TEK, [(60, 18)], 15, 25, "Nadège (formatrice)",
        VERY_GOOD, WEAK, sac=15, interval=0, o2=18, he=45, litres=24, start=220, suit=DRY, weight=4.0,
        boat="Garlaban", stages=(EAN50, OXYGEN), difficulty=4, unforgettable=True,
        notes="Première à 60 m. Runtime tenu à la minute.",
    ),
    Row(
        "2016-06-19", "08:30", "marseille", "Épave du Chaouen", WRECK, [(30, 25), (15, 10)], 17, 26,
        "Karim, Inès", EXCELLENT, WEAK, sac=15, interval=0, o2=32, litres=15, start=220, weight=6.0,
        boat="Garlaban", wreck="Le Chaouen", difficulty=2,
        notes="Plongée tranquille du lendemain.",
    ),
]
