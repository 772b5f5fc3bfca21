"""The nine register record classes for the scripts: their fields, their archive order in every version, and what
a reader must make of it. Shares nothing with the program, which is tested against what is built from here."""

from __future__ import annotations

import base64
import dataclasses
import datetime
from typing import Any

import plongee
import typedstream as ts
from plongee import levels

Values = dict[str, Any]  # by field: a number, a text, seconds for a date, an Object for an image; None is absent

DAYS = ["Lundi", "Mardi", "Mercredi", "Jeudi", "Vendredi", "Samedi", "Dimanche"]
OPENING_HOURS = [f"horaire{day}_{n}" for day in DAYS for n in range(1, 5)]
LAST = 99


@dataclasses.dataclass(frozen=True)
class Slot:
    name: str
    kind: str  # how it stands in the file: i, f, string, date, image
    since: int
    until: int


@dataclasses.dataclass(frozen=True)
class Register:
    stem: str  # of the golden files, and their extension
    cls: str
    type_name: str
    version: int
    slots: list[Slot]
    not_archived: dict[str, Any]  # fields that stand in no current archive, and how a reader finds them
    old_versions: tuple[int, ...] = ()

    def in_version(self, version: int) -> list[Slot]:
        return [slot for slot in self.slots if slot.since <= version <= slot.until]


def _slots(*runs: tuple) -> list[Slot]:
    """Runs of slots of one kind; the names of a run are a list or stand in one text; then since and until."""
    order = []
    for kind, names, *versions in runs:
        since, until = [*versions, *(0, LAST)[len(versions) :]]
        order += [Slot(name, kind, since, until) for name in (names.split() if isinstance(names, str) else names)]
    return order


HISTORY = "typeMachine puissance natureFond nomsPrecedents armateur ports capitaine equipage chargement provenance"
HISTORY_TEXTS = [*HISTORY.split(), "destination"]

EPAVES = _slots(
    ("string", "nom type immatriculation nationalite"),
    ("i", "longueur largeur", 0, 3),
    ("f", "longueur largeur", 4),
    ("i", "materiau jauge propulsion"),
    ("string", "dateConstruction lieuConstruction dateNaufrage causeNaufrage"),
    ("f", "pointHaut pointBas"),
    ("i", "orientationSwitch", 3),
    ("i", "orientation inclinaison"),
    ("date", "dateVisite"),
    ("i", "aVisiter", 2),
    ("string", "lieu site pays gps"),
    ("i", "gpsSystem acces accesBord localisation interet technicite"),
    # The program writes the first bearing in the third one's place, but reads whatever stands there.
    ("string", "relevement1 relevement2 relevement3"),
    ("image", "photo"),
    ("string", "notes"),
    ("string", "typeMachine puissance", 5),
    ("i", "puissancePopUp", 6),
    ("string", HISTORY_TEXTS[2:], 5),
    ("date", "miseAJour", 5),
)

MATERIEL = _slots(
    ("string", "matosNo typeMatos marqueMatos serieMatos"),
    ("string", "dateAchatMatos", 0, 2),
    ("date", "dateAchat", 3),
    ("i", "quantiteMatos"),
    ("string", "prixMatos"),
    ("date", "lastRevision nextRevision"),
    ("string", "tankMaker", 5),
    ("string", "firstRequalification", 0, 3),
    ("date", "firstRequalificationDate lastRequalification", 4),
    ("date", "nextRequalification"),
    ("i", "noInspection bloc tiv"),
    ("string", "noTIV nomTIV"),
    ("string", "valveRef", 5),
    ("i", "resultTIV", 5),
    ("f", "capaciteBloc"),
    ("i", "pressionService pressionEpreuve"),
    ("string", "notesMatos"),
    ("i", "equipState factureMatos", 2),
    ("string", "lieuAchatMatos", 2),
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
    ("i", "sofnolime disinfection battery cells nbCells injector valve oRing electronicHead scrubber"),
    ("i", "mpO2", 2),
    ("f", "mpO2Value", 2),
    ("i", levels("cell", 5), 3),
    ("string", levels("typeCell", 5), 4),
    ("date", levels("cell", 5, "_in"), 3),
    ("string", "notes"),
)

CONSOMMABLES = _slots(
    ("string", "reference marque utilisation"),
    ("i", "stock reserve", 0, 1),
    ("f", "stock reserve", 2),
    ("f", "reserveMax", 3),
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
    ("string", "entreprise adresse"),
    ("i", "codePostal", 0, 1),
    ("string", "codePostal", 2),
    ("string", "ville pays telephone fax email url activite"),
    ("date", "miseAJour"),
    ("string", [*OPENING_HOURS, "remarques"]),
    ("i", "cotation", 3),
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

REGISTERS = [
    Register("epaves", "Epaves", "Epaves", 6, EPAVES, {"tableauDesEpaves": None}, (1, 2, 3, 4, 5)),
    Register(
        "materiel",
        "Materiel",
        "Materiel",
        5,
        MATERIEL,
        {"tableauDuMatos": None, "progress": 0, "firstRequalification": None, "dateAchatMatos": None},
        (1, 2, 3, 4),
    ),
    Register("compresseur", "Compresseur", "Compresseur", 1, COMPRESSEUR, {"tableauDesMaintenances": None}),
    Register(
        "rebreather",
        "Rebreather",
        "Rebreather",
        4,
        REBREATHER,
        {"rebreatherServicesArray": None, "eletronicHead": 0},
        (1, 2, 3),
    ),
    Register(
        "consommables",
        "Consommables",
        "Consommables",
        3,
        CONSOMMABLES,
        {"tableauDesConsommables": None, "progress": 0},
        (1, 2),
    ),
    Register("budget", "Budget", "Budget", 1, BUDGET, {"tableauDuBudget": None}),
    Register("entreprises", "Entreprises", "Entreprises", 3, ENTREPRISES, {"tableauDesEntreprises": None}, (1, 2)),
    Register("structures", "Structures", "Structures", 0, STRUCTURES, {"tableauDesStructures": None}),
    Register("documents", "DiversDocs", "Divers documents", 1, DIVERS_DOCS, {"tableauDesDocs": None}),
]


def named(stem: str) -> Register:
    return next(register for register in REGISTERS if register.stem == stem)


def record(register: Register, values: Values, version: int | None = None) -> ts.Object:
    """The archived record. A slot whose field has no value is nil or 0."""
    if version is None:
        version = register.version
    groups, texts = [], {}
    for slot in register.in_version(version):
        value = values.get(slot.name)
        if slot.kind in "if":
            groups.append((slot.kind, (value or 0,)))
        elif value is None or slot.kind == "image":
            groups.append(("@", (value,)))
        elif slot.kind == "date":
            groups.append(("@", (ts.date(value),)))
        else:
            texts[slot.name] = value if isinstance(value, ts.Object) else ts.string(value)
            groups.append(("@", (texts[slot.name],)))
    return ts.record(register.cls, version, groups)


def shared_bearing(values: Values) -> Values:
    """A wreck as the program writes it: the first bearing once more in the third one's place."""
    first = values.get("relevement1")
    return values | {"relevement1": (shared := None if first is None else ts.string(first)), "relevement3": shared}


# ---- what a reader makes of it


def read(register: Register, values: Values, version: int) -> Values:
    """Every field as it is after reading `record(register, values, version)`: texts as texts, dates as seconds,
    images as the objects that they are."""
    fields = {slot.name: 0 if slot.kind in "if" else None for slot in register.in_version(register.version)}
    fields |= register.not_archived
    if register.cls == "Epaves" and version <= 4:
        fields |= {name: "" for name in HISTORY_TEXTS}
    for slot in register.in_version(version):
        value = values.get(slot.name)
        if slot.kind in "if":
            value = value or 0
        elif slot.kind == "string" and isinstance(value, ts.Object):
            value = plongee.as_text(value)
        fields[slot.name] = value
    for slot in register.in_version(register.version):
        if slot.kind == "f":
            fields[slot.name] = ts.to_float32(fields[slot.name])
    if register.cls == "Entreprises" and version <= 1:
        fields["codePostal"] = str(fields["codePostal"])
    if register.cls == "Materiel" and version <= 2:
        fields["dateAchat"] = _day_of(fields["dateAchatMatos"])
    return fields


def _day_of(text: str | None) -> float | None:
    """Seconds of the midnight that begins "5/3/2010"; None when the text is no such day."""
    try:
        day = datetime.datetime.strptime(text or "", "%d/%m/%Y")
    except ValueError:
        return None
    return plongee.seconds_of(day.year, day.month, day.day)


def as_json(register: Register, fields: Values) -> dict[str, Any]:
    """The fields of `read` as the program's JSON has them. An image's bytes are told by `pictures`."""
    kinds = {slot.name: slot.kind for slot in register.slots} | {
        slot.name: slot.kind for slot in register.in_version(register.version)
    }
    decoded: dict[str, Any] = {}
    for name, value in fields.items():
        kind = kinds.get(name)
        if value is None:
            decoded[name] = None
        elif kind == "f":
            decoded[name] = plongee.short_float(value)
        elif kind == "date":
            decoded[name] = plongee.local_time(value)
        elif kind == "image":
            content = picture_bytes(value)
            form = "png" if content.startswith(b"\x89PNG") else "jpeg" if content.startswith(b"\xff\xd8") else "tiff"
            decoded[name] = {"image": form, "base64": base64.b64encode(content).decode()}
        else:
            decoded[name] = value
    return decoded


def picture_bytes(item: ts.Object) -> bytes:
    """The encoded picture somewhere inside an image object."""
    for _, values in item.groups:
        for value in values:
            found = picture_bytes(value) if isinstance(value, ts.Object) else value
            if isinstance(found, bytes) and found[:4] in (b"II*\x00", b"MM\x00*", b"\x89PNG", b"\xff\xd8\xff\xe0"):
                return found
    return b""
