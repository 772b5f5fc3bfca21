"""One golden archive of each register at its current version: two records with every slot filled."""

from __future__ import annotations

import base64
import struct
import zlib
from typing import Any, Iterator

import plongee
import typedstream as ts
from plongee import levels, seconds_of

Slots = list[tuple[str, str]]  # name, kind: i, f, string, date, image

DAYS = ["Lundi", "Mardi", "Mercredi", "Jeudi", "Vendredi", "Samedi", "Dimanche"]
OPENING_HOURS = [f"horaire{day}_{n}" for day in DAYS for n in range(1, 5)]


def _slots(*runs: tuple[str, list[str] | str]) -> Slots:
    """Runs of slots of one kind; the names of a run are a list or stand in one text."""
    order = []
    for kind, names in runs:
        order += [(name, kind) for name in (names.split() if isinstance(names, str) else names)]
    return order


EPAVES = _slots(
    ("string", "nom type immatriculation nationalite"),
    ("f", "longueur largeur"),
    ("i", "materiau jauge propulsion"),
    ("string", "dateConstruction lieuConstruction dateNaufrage causeNaufrage"),
    ("f", "pointHaut pointBas"),
    ("i", "orientationSwitch orientation inclinaison"),
    ("date", "dateVisite"),
    ("i", "aVisiter"),
    ("string", "lieu site pays gps"),
    ("i", "gpsSystem acces accesBord localisation interet technicite"),
    # The program writes the first bearing in the third one's place, but reads whatever stands there.
    ("string", "relevement1 relevement2 relevement3"),
    ("image", "photo"),
    ("string", "notes typeMachine puissance"),
    ("i", "puissancePopUp"),
    ("string", "natureFond nomsPrecedents armateur ports capitaine equipage chargement provenance destination"),
    ("date", "miseAJour"),
)

MATERIEL = _slots(
    ("string", "matosNo typeMatos marqueMatos serieMatos"),
    ("date", "dateAchat"),
    ("i", "quantiteMatos"),
    ("string", "prixMatos"),
    ("date", "lastRevision nextRevision"),
    ("string", "tankMaker"),
    ("date", "firstRequalificationDate lastRequalification nextRequalification"),
    ("i", "noInspection bloc tiv"),
    ("string", "noTIV nomTIV valveRef"),
    ("i", "resultTIV"),
    ("f", "capaciteBloc"),
    ("i", "pressionService pressionEpreuve"),
    ("string", "notesMatos"),
    ("i", "equipState factureMatos"),
    ("string", "lieuAchatMatos"),
)

COMPRESSEUR = _slots(
    ("string", "marque modele cumulTemps"),
    ("date", "date temps"),
    ("i", "vidange typeHuile filtreAir operationFiltre cartouche charbon alumine tamis depoussierage"),
    ("i", "controles soupapes intSoupape"),
    ("f", "anHuile anCO2 anCO anH2O"),
    ("i", "anCO2Unit anCOUnit"),
    ("string", "notes"),
)

REBREATHER = _slots(
    ("date", "date"),
    ("string", "rebreatherTime"),
    ("date", "sofnoTime"),
    ("i", "sofnolime disinfection battery cells nbCells injector valve oRing electronicHead scrubber mpO2"),
    ("f", "mpO2Value"),
    ("i", levels("cell", 5)),
    ("string", levels("typeCell", 5)),
    ("date", levels("cell", 5, "_in")),
    ("string", "notes"),
)

CONSOMMABLES = _slots(
    ("string", "reference marque utilisation"),
    ("f", "stock reserve reserveMax"),
    ("string", "rangement"),
    ("i", "noInventaire"),
    ("date", "dateInventaire"),
    ("string", "notes"),
)

BUDGET = _slots(
    ("string", "prestation"),
    ("i", [f"quantite_{n}" for n in range(6)]),
    ("f", [f"prixUnitaire_{n}" for n in range(6)]),
    ("string", levels("supplement_", 4)),
    ("i", "prixDegressif"),
    ("i", levels("unitesCarte_", 4)),
    ("f", levels("prixCarte_", 4)),
    ("i", "prevDepense"),
    ("string", "entreprise"),
    ("i", "qualitePrix delai"),
    ("date", "miseAJour"),
    ("string", "notes"),
)

ENTREPRISES = _slots(
    ("string", "entreprise adresse codePostal ville pays telephone fax email url activite"),
    ("date", "miseAJour"),
    ("string", [*OPENING_HOURS, "remarques"]),
    ("i", "cotation"),
)

STRUCTURES = _slots(
    ("string", "nom"),
    ("i", "type"),
    ("string", "affiliation gerant adresse"),
    ("i", "codePostal"),
    ("string", "ville pays telephone portable fax url email"),
    ("i", "cotation"),
    ("date", "miseAJour"),
    ("string", levels("plongee_", 5)),
    ("f", ["bapteme", *levels("prix_", 5)]),
    ("string", levels("formation_", 6)),
    ("f", levels("prixForm_", 6)),
    ("string", OPENING_HOURS),
    ("i", "nbPlongees"),
    ("string", "remarques"),
)

DIVERS_DOCS = _slots(
    ("i", "type"),
    ("string", "titre emetteur"),
    ("date", "date"),
    ("i", "renouveler"),
    ("date", "dateRenouvellement"),
    ("image", "photocopy"),
    ("string", "notes"),
)

# file stem and extension, class, version, slots
REGISTERS = [
    ("epaves", "Epaves", 6, EPAVES),
    ("materiel", "Materiel", 5, MATERIEL),
    ("compresseur", "Compresseur", 1, COMPRESSEUR),
    ("rebreather", "Rebreather", 4, REBREATHER),
    ("consommables", "Consommables", 3, CONSOMMABLES),
    ("budget", "Budget", 1, BUDGET),
    ("entreprises", "Entreprises", 3, ENTREPRISES),
    ("structures", "Structures", 0, STRUCTURES),
    ("documents", "DiversDocs", 1, DIVERS_DOCS),
]


# ---- small pictures


def tiny_png(red: int, green: int, blue: int) -> bytes:
    """A PNG of one pixel."""

    def chunk(kind: bytes, body: bytes) -> bytes:
        return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))

    header = struct.pack(">IIBBBBB", 1, 1, 8, 2, 0, 0, 0)
    pixels = zlib.compress(bytes([0, red, green, blue]), 9)
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", pixels) + chunk(b"IEND", b"")


def tiny_tiff(red: int, green: int, blue: int) -> bytes:
    """A little-endian TIFF of one pixel: header, directory, the three bits-per-sample numbers, the pixel."""
    short, long = 3, 4
    directory_at, entry_count = 8, 9
    depths_at = directory_at + 2 + 12 * entry_count + 4
    pixel_at = depths_at + 6
    entries = [
        (256, short, 1, 1),  # width
        (257, short, 1, 1),  # height
        (258, short, 3, depths_at),  # bits per sample
        (259, short, 1, 1),  # not compressed
        (262, short, 1, 2),  # RGB
        (273, long, 1, pixel_at),  # strip offset
        (277, short, 1, 3),  # samples per pixel
        (278, short, 1, 1),  # rows per strip
        (279, long, 1, 3),  # strip byte count
    ]
    body = b"II*\x00" + struct.pack("<I", directory_at) + struct.pack("<H", entry_count)
    body += b"".join(struct.pack("<HHII", *entry) for entry in entries) + struct.pack("<I", 0)
    return body + struct.pack("<HHH", 8, 8, 8) + bytes([red, green, blue])


IMAGE = ts.Class("NSImage", 0, ts.OBJECT)
BITMAP = ts.Class("NSBitmapImageRep", 0, ts.Class("NSImageRep", 0, ts.OBJECT))


def image_around(content: bytes, nested: bool) -> ts.Object:
    """An image object with encoded picture bytes somewhere inside; readers find them by their first bytes."""
    if nested:
        count = len(content)
        picture = ts.Object(BITMAP, [("cc", (1, 0)), ("i", (count,)), (f"[{count}c]", (content,))])
        return ts.Object(IMAGE, [("ff", (1.0, 1.0)), ("@", (ts.array([picture]),))])
    return ts.Object(IMAGE, [("@", (ts.string("Apercu"),)), ("@", (ts.data(content),))])


# ---- the records


def _filled(kind: str, name: str, place: int, number: int) -> tuple[str, Any, Any]:
    """Type code, archived value and expected value of one slot, unlike every other of its record."""
    if kind == "i":
        value = (100000 * place if place % 6 == 5 else 100 * number + place) * (-1 if place % 9 == 4 else 1) + number
        return "i", value, value
    if kind == "f":
        value = ts.to_float32(100 * number + place + (0 if place % 4 == 3 else 0.3))
        return "f", value, plongee.short_float(value)
    if kind == "date":
        seconds = seconds_of(2005 + number, 1 + place % 12, 1 + place % 28, place % 24, 7 * number, place % 60)
        return "@", ts.date(seconds), plongee.local_time(seconds)
    if kind == "image":
        content = (tiny_png if number else tiny_tiff)(200, 10 * number, place)
        return "@", image_around(content, nested=number == 1), base64.b64encode(content).decode()
    text = f"{name} {number}" if place % 3 else f"{name} « {number} »"
    return "@", ts.string(text), text


def registers() -> Iterator[tuple[str, bytes, dict]]:
    for stem, cls, version, slots in REGISTERS:
        records, decoded = [], []
        for number in range(2):
            filled = [_filled(kind, name, place, number) for place, (name, kind) in enumerate(slots)]
            records.append(ts.record(cls, version, [(code, (value,)) for code, value, _ in filled]))
            decoded.append([[kind, value] for (_, kind), (_, _, value) in zip(slots, filled)])
            for wanted in ("i", "f", "string", "date"):
                values = [value for kind, value in decoded[-1] if kind == wanted]
                if len(set(values)) != len(values):
                    raise ValueError(f"two slots of {cls} with the same value")
        expectation = {"class": cls, "version": version, "names": [name for name, _ in slots], "slots": decoded}
        yield f"{stem}-v{version}.{stem}", ts.encode(ts.array(records)), expectation
