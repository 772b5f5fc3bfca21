#!/usr/bin/env python3
"""Make the demo registers resources/demo/*.{epaves,materiel,...}: one document of each kind, the same on every
run. All names of ships, firms, makers and people are made up."""

from __future__ import annotations

import argparse
import pathlib
import sys
from typing import Any

import demo_address_books
import demo_pictures
import register_classes
import typedstream as ts
from plongee import seconds_of

DEMO = pathlib.Path(__file__).resolve().parent.parent / "resources" / "demo"
NO_DATE = seconds_of(1900, 1, 1)


def day(text: str) -> float:
    year, month, number = map(int, text.split("-"))
    return seconds_of(year, month, number)


def hours(hour: int, minute: int) -> float:
    return seconds_of(2001, 1, 1, hour, minute)


def on(names: str) -> dict[str, int]:
    return {name: 1 for name in names.split()}


# ---- wrecks

STEAM, SAIL, DIESEL = 6, 7, 2
WOOD, IRON = 1, 2

WRECKS: list[dict[str, Any]] = [
    {
        "nom": "Marie-Perrine",
        "type": "Cargo",
        "nationalite": "Française",
        "longueur": 62.5,
        "largeur": 9.2,
        "jauge": 780,
        "materiau": IRON,
        "propulsion": STEAM,
        "typeMachine": "Triple expansion",
        "puissance": "620",
        "dateConstruction": "1899",
        "lieuConstruction": "Nantes",
        "dateNaufrage": "14/02/1917",
        "causeNaufrage": "Mine",
        "pointHaut": 18.0,
        "pointBas": 27.5,
        "natureFond": "Sable et roche",
        **on("orientationSwitch"),
        "orientation": 75,
        "inclinaison": 2,
        "dateVisite": day("2011-08-19"),
        "lieu": "Baie de Quiberon",
        "site": "Plateau de la Recherche",
        "pays": "France",
        "gps": "47°27,310' N 002°51,840' W",
        "gpsSystem": 1,
        "acces": 1,
        "localisation": 2,
        "interet": 4,
        "technicite": 2,
        "relevement1": "Clocher de Port-Haliguen par le château d'eau",
        "relevement2": "Phare de la Teignouse au 248",
        "relevement3": "Clocher de Port-Haliguen par le château d'eau",
        "nomsPrecedents": "Lord Ashcombe",
        "armateur": "Compagnie Nantaise des Vapeurs",
        "ports": "Nantes, Cardiff",
        "capitaine": "Yves Le Garrec",
        "equipage": "19 hommes, tous sauvés",
        "chargement": "Charbon",
        "provenance": "Cardiff",
        "destination": "Saint-Nazaire",
        "miseAJour": day("2015-09-02"),
        "notes": "Chaudières bien visibles. Congres et tacauds en nombre. Courant fort à mi-marée.",
    },
    {
        "nom": "Etoile du Nord",
        "type": "Chalutier",
        "nationalite": "Belge",
        "longueur": 24.0,
        "largeur": 6.1,
        "jauge": 96,
        "materiau": WOOD,
        "propulsion": DIESEL,
        "puissance": "240",
        "dateConstruction": "1951",
        "dateNaufrage": "03/11/1974",
        "causeNaufrage": "Abordage",
        "pointHaut": 31.0,
        "pointBas": 36.0,
        "natureFond": "Vase",
        "inclinaison": 3,
        "dateVisite": day("2013-06-22"),
        "lieu": "Belle-Île",
        "site": "Nord des Poulains",
        "pays": "France",
        "gps": "47°25,905' N 003°16,120' W",
        "gpsSystem": 1,
        "acces": 2,
        "localisation": 3,
        "interet": 3,
        "technicite": 3,
        "miseAJour": day("2013-06-23"),
        "notes": "Filets sur l'arrière, prudence.",
    },
    {
        "nom": "Sainte-Anne des Flots",
        "type": "Goélette",
        "nationalite": "Française",
        "longueur": 31.0,
        "largeur": -1.0,
        "materiau": WOOD,
        "propulsion": SAIL,
        "dateConstruction": "--/--/----",
        "dateNaufrage": "1868",
        "causeNaufrage": "Tempête",
        "pointHaut": 6.0,
        "pointBas": 11.0,
        "natureFond": "Roche",
        "dateVisite": day("2009-07-18"),
        "lieu": "Cap Fréhel",
        "site": "Anse des Sévignés",
        "pays": "France",
        "acces": 1,
        **on("accesBord"),
        "localisation": 1,
        "interet": 2,
        "technicite": 1,
        "miseAJour": day("2009-07-20"),
        "notes": "Quelques membrures et un canon.",
    },
    {
        "nom": "SS Halcyon Bay",
        "type": "Cargo",
        "nationalite": "British",
        "longueur": 118.0,
        "largeur": 16.4,
        "jauge": 4620,
        "materiau": IRON,
        "propulsion": STEAM,
        "puissance": "1950",
        "puissancePopUp": 2,
        "dateNaufrage": "1941",
        "causeNaufrage": "Bombardement",
        "pointHaut": 16.0,
        "pointBas": 32.0,
        "lieu": "Mer Rouge",
        "site": "Sha'ab Nasrani",
        "pays": "Égypte",
        **on("aVisiter"),
        "interet": 5,
        "technicite": 4,
        "miseAJour": day("2016-03-11"),
        "notes": "À voir lors de la prochaine croisière.",
    },
]


def wrecks() -> list[dict[str, Any]]:
    return [
        row | {"photo": demo_pictures.wreck(place) if place != 2 else None} for place, row in enumerate(WRECKS)
    ]


# ---- equipment


def equipment() -> list[dict[str, Any]]:
    rows = [
        # kind, make, serial, bought, price, shop, state, last and next inspection
        ("Détendeur", "Narval", "NV-204471", "2012-03-17", "410", "Plongée Passion", 0, "2015-03-02", "2016-03-02"),
        ("Gilet", "Narval", "G-88123", "2012-03-17", "365", "Plongée Passion", 0, "2015-10-12", "2016-10-12"),
        ("Ordinateur", "Marsouin", "M2-04417", "2012-05-05", "299", "Le Palier", 0, None, None),
        ("Combinaison", "Kelp", "", "2010-04-10", "240", "Le Palier", 6, None, None),
        ("Phare", "Lucioles", "L-1120", "2013-11-30", "180", "Le Palier", 1, None, None),
        ("Compas", "Marsouin", "", "2009-06-01", "45", "Plongée Passion", 5, None, None),
    ]
    items: list[dict[str, Any]] = []
    for number, (kind, make, serial, bought, price, shop, state, last, following) in enumerate(rows, start=1):
        items.append(
            {
                "matosNo": str(number),
                "typeMatos": kind,
                "marqueMatos": make,
                "serieMatos": serial,
                "dateAchat": day(bought),
                "quantiteMatos": 1,
                "prixMatos": price,
                "lieuAchatMatos": shop,
                "factureMatos": int(number != 6),
                "equipState": state,
                "lastRevision": day(last) if last else NO_DATE,
                "nextRevision": day(following) if following else NO_DATE,
                "noInspection": int(last is None),
                "notesMatos": "",
            }
        )
    items.append(cylinder(len(items) + 1))
    return items


def cylinder(number: int) -> dict[str, Any]:
    return {
        "matosNo": str(number),
        "typeMatos": "Bloc",
        "marqueMatos": "Narval",
        "serieMatos": "0907-15L-332",
        "dateAchat": day("2009-09-12"),
        "quantiteMatos": 1,
        "prixMatos": "290",
        "lieuAchatMatos": "Plongée Passion",
        "factureMatos": 1,
        "lastRevision": day("2015-11-07"),
        "nextRevision": day("2016-11-07"),
        "tankMaker": "Aciers du Ponant",
        "firstRequalificationDate": day("2009-07-01"),
        "lastRequalification": day("2014-06-30"),
        "nextRequalification": day("2019-06-30"),
        **on("bloc tiv"),
        "noTIV": "35-2114",
        "nomTIV": "Claire Bertin",
        "valveRef": "DIN 232",
        "capaciteBloc": 15.0,
        "pressionService": 232,
        "pressionEpreuve": 348,
        "notesMatos": "Peinture reprise en 2014.",
    }


# ---- compressor and rebreather


def compressor() -> list[dict[str, Any]]:
    common = {"marque": "Ponant Air", "modele": "PA 16 triphasé"}
    unmeasured = {"anHuile": -1.0, "anCO2": -1.0, "anCO": -1.0, "anH2O": -1.0}
    return [
        common
        | unmeasured
        | on("depoussierage controles")
        | {"cumulTemps": "212", "date": day("2014-04-05"), "temps": hours(0, 40), "notes": ""},
        common
        | on("vidange typeHuile filtreAir operationFiltre cartouche soupapes intSoupape controles")
        | {"cumulTemps": "250", "date": day("2014-09-20"), "temps": hours(1, 15)}
        | {"anHuile": 0.1, "anCO2": 380.0, "anCO": 2.0, "anH2O": 22.0, "anCO2Unit": 1, "anCOUnit": 1}
        | {"notes": "Analyse faite par le laboratoire de la mairie."},
        common
        | unmeasured
        | on("filtreAir charbon tamis soupapes")
        | {"cumulTemps": "301", "date": day("2015-05-09"), "temps": hours(0, 55), "notes": "Courroie retendue."},
        common
        | on("vidange cartouche depoussierage controles")
        | {"cumulTemps": "348", "date": day("2016-04-16"), "temps": hours(1, 5)}
        | {"anHuile": 0.2, "anCO2": 410.0, "anCO": -1.0, "anH2O": 25.0, "notes": ""},
    ]


def rebreather() -> list[dict[str, Any]]:
    first = {f"cell{n}": int(n <= 3) for n in range(1, 6)}
    first |= {f"typeCell{n}": "OX-17" if n <= 3 else "" for n in range(1, 6)}
    first |= {f"cell{n}_in": day("2014-06-14") if n <= 3 else NO_DATE for n in range(1, 6)}
    renewed = first | {"cell2_in": day("2015-09-26"), "typeCell2": "OX-17 B"}
    return [
        first
        | on("sofnolime disinfection cells battery")
        | {"nbCells": 3, "date": day("2014-06-14"), "rebreatherTime": "00:00", "sofnoTime": hours(0, 0)}
        | {"notes": "Mise en service des trois cellules."},
        first
        | on("sofnolime disinfection oRing mpO2")
        | {"mpO2Value": 8.5, "date": day("2015-03-21"), "rebreatherTime": "41:20", "sofnoTime": hours(2, 30)}
        | {"notes": ""},
        renewed
        | on("sofnolime cells injector valve mpO2 electronicHead")
        | {"nbCells": 1, "mpO2Value": 8.7, "date": day("2015-09-26"), "rebreatherTime": "63:05"}
        | {"sofnoTime": hours(1, 45), "notes": "La cellule 2 dérivait."},
        renewed
        | on("sofnolime disinfection scrubber")
        | {"date": day("2016-05-21"), "rebreatherTime": "78:40", "sofnoTime": hours(3, 0), "notes": ""},
    ]


# ---- consumables and budget


def consumables() -> list[dict[str, Any]]:
    rows = [
        ("JT-112", "Joints du Port", "Premier étage, siège HP", 4.0, 2.0, 10.0, "Tiroir 1"),
        ("JT-018", "Joints du Port", "Robinet de bloc", 3.0, 3.0, 12.0, "Tiroir 1"),
        ("GR-O2", "Sillage", "Graisse compatible oxygène", 0.5, 1.0, 3.0, "Armoire"),
        ("CHX-20", "Calcia", "Chaux, bidon de 20 kg", 1.5, 1.0, 4.0, "Local"),
        ("CR-16", "Ponant Air", "Cartouche de compresseur", 1.0, 2.0, 4.0, "Local"),
        ("EMB", "Kelp", "Embouts de détendeur", 9.0, 2.0, 10.0, "Tiroir 2"),
    ]
    names = ("reference", "marque", "utilisation", "stock", "reserve", "reserveMax", "rangement")
    items = [dict(zip(names, row)) | {"dateInventaire": day("2016-01-09"), "notes": ""} for row in rows]
    items[5]["noInventaire"] = 1
    return items


def budget() -> list[dict[str, Any]]:
    blank = {f"supplement_{n}": "" for n in range(1, 5)} | {"notes": "", "miseAJour": day("2016-02-14")}
    return [
        blank
        | {"prestation": "Plongée d'exploration", "entreprise": "Club du Phare", "quantite_0": 10}
        | {"prixUnitaire_0": 28.0, "supplement_1": "Bloc", "quantite_1": 10, "prixUnitaire_1": 5.0}
        | {"supplement_2": "Nitrox", "quantite_2": 4, "prixUnitaire_2": 6.5, "prixDegressif": 1}
        | {"unitesCarte_1": 5, "prixCarte_1": 130.0, "unitesCarte_2": 10, "prixCarte_2": 240.0}
        | {"prevDepense": 1, "qualitePrix": 4, "delai": 3},
        blank
        | {"prestation": "Stage nitrox confirmé", "entreprise": "Le Palier", "quantite_0": 1}
        | {"prixUnitaire_0": 190.0, "prevDepense": 1, "qualitePrix": 3, "delai": 5},
        blank
        | {"prestation": "Gonflage trimix", "entreprise": "Le Palier", "quantite_0": 6, "prixUnitaire_0": 42.0}
        | {"qualitePrix": 2, "delai": 2},
        blank
        | {"prestation": "Requalification de bloc", "entreprise": "Aciers du Ponant", "quantite_0": 2}
        | {"prixUnitaire_0": 38.0, "supplement_1": "Transport", "quantite_1": 1, "prixUnitaire_1": 12.0},
    ]


# ---- papers


def papers() -> list[dict[str, Any]]:
    rows = [
        (1, "Plongeur niveau 3", "Fédération du Ponant", "2008-07-12", None),
        (1, "Plongeur nitrox confirmé", "Fédération du Ponant", "2010-05-30", None),
        (2, "Certificat médical", "Dr. Hélène Maugis", "2016-01-18", "2017-01-18"),
        (4, "Licence 2016", "Club du Phare", "2015-10-01", "2016-09-30"),
        (3, "Facture du détendeur", "Plongée Passion", "2012-03-17", None),
        (0, "Attestation d'assurance", "Mutuelle des Gens de Mer", "2016-01-01", "2017-01-01"),
    ]
    return [
        {
            "type": kind,
            "titre": title,
            "emetteur": issuer,
            "date": day(date),
            "renouveler": int(renewal is not None),
            "dateRenouvellement": day(renewal) if renewal else None,
            "photocopy": demo_pictures.paper(place),
            "notes": "",
        }
        for place, (kind, title, issuer, date, renewal) in enumerate(rows)
    ]


DOCUMENTS = {
    "wrecks.epaves": wrecks,
    "equipment.materiel": equipment,
    "compressor.compresseur": compressor,
    "rebreather.rebreather": rebreather,
    "spare-parts.consommables": consumables,
    "budget.budget": budget,
    "firms.entreprises": demo_address_books.firms,
    "clubs.structures": demo_address_books.clubs,
    "papers.documents": papers,
}


def content(name: str) -> bytes:
    register = register_classes.named(name.rsplit(".", 1)[1])
    known = {slot.name for slot in register.in_version(register.version)}
    records = []
    for values in DOCUMENTS[name]():
        if unknown := values.keys() - known:
            raise KeyError(f"{name}: {sorted(unknown)}")
        texts = {slot.name: "" for slot in register.in_version(register.version) if slot.kind == "string"}
        whole = texts | values
        if register.cls == "Epaves":
            whole = register_classes.shared_bearing(whole)
        records.append(register_classes.record(register, whole))
    return bytes(ts.encode(ts.array(records)))


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--check", action="store_true", help="write nothing, compare with what is there")
    arguments = parser.parse_args()
    wrong = 0
    for name in DOCUMENTS:
        made = content(name)
        if arguments.check:
            if not (DEMO / name).is_file() or (DEMO / name).read_bytes() != made:
                print(f"not as made: {name}")
                wrong += 1
        else:
            (DEMO / name).write_bytes(made)
            print(f"{name}: {len(made)} bytes")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
