"""The demo address books: firms and clubs with their opening hours, all made up."""

from __future__ import annotations

from typing import Any

from plongee import seconds_of
from register_classes import DAYS

CLOSED = ("Fermé",) * 4
NONE = ("-",) * 4


def _hours(week: tuple[tuple[str, ...], ...]) -> dict[str, str]:
    """The times of the seven days; days that are not told are closed on Sundays and "-" else."""
    times = [*week, *((NONE,) * (6 - len(week)) + (CLOSED,) if len(week) < 7 else ())]
    return {f"horaire{day}_{n}": times[place][n - 1] for place, day in enumerate(DAYS) for n in range(1, 5)}


def firms() -> list[dict[str, Any]]:
    shop = (("10:00", "12:30", "14:00", "19:00"),) * 5 + (("10:00", "12:30", "13:30", "18:00"), CLOSED)
    workshop = (("8:00", "12:00", "13:30", "17:30"),) * 5 + (CLOSED, CLOSED)
    rows = [
        ("Plongée Passion", "Magasin", "12 quai du Port", "35400", "Saint-Malo", 4, (2016, 5, 2), shop),
        ("Le Palier", "Magasin", "3 rue des Forges", "29200", "Brest", 5, (2015, 3, 14), shop),
        ("Aciers du Ponant", "Requalification", "Zone de Kerbois", "56100", "Lorient", 3, (2013, 9, 30), workshop),
        ("Ponant Air", "Compresseurs", "41 route de Vannes", "44800", "Saint-Herblain", 0, (2014, 12, 1), workshop),
    ]
    return [
        {
            "entreprise": name,
            "activite": activity,
            "adresse": street,
            "codePostal": code,
            "ville": town,
            "pays": "France",
            "telephone": f"02 99 00 0{place} 1{place}",
            "fax": "",
            "email": f"contact@{name.lower().replace(' ', '-').replace('é', 'e')}.example",
            "url": f"www.{name.lower().replace(' ', '-').replace('é', 'e')}.example",
            "cotation": rating,
            "miseAJour": seconds_of(*updated),
            "remarques": "",
        }
        | _hours(week)
        for place, (name, activity, street, code, town, rating, updated, week) in enumerate(rows)
    ]


def clubs() -> list[dict[str, Any]]:
    weekend = (NONE,) * 5 + (("8:30", "12:00", "14:00", "18:00"), ("8:30", "12:30", "-", "-"))
    daily = (("8:00", "12:30", "14:00", "19:00"),) * 7
    return [
        {
            "nom": "Club du Phare",
            "type": 0,
            "affiliation": "Fédération du Ponant",
            "gerant": "Bernard Tanguy",
            "adresse": "Cale de la Tour",
            "codePostal": 35800,
            "ville": "Dinard",
            "pays": "France",
            "telephone": "02 99 11 22 33",
            "portable": "06 00 11 22 33",
            "email": "club@phare.example",
            "url": "www.phare.example",
            "cotation": 5,
            "miseAJour": seconds_of(2016, 5, 15),
            "bapteme": 35.0,
            "plongee_1": "Exploration",
            "prix_1": 28.0,
            "plongee_2": "Exploration, équipement compris",
            "prix_2": 42.0,
            "formation_1": "Niveau 1",
            "prixForm_1": 310.0,
            "formation_2": "Niveau 2",
            "prixForm_2": 390.0,
            "formation_3": "Nitrox",
            "prixForm_3": 120.5,
            "nbPlongees": 64,
            "remarques": "Deux bateaux. Réserver la veille.",
        }
        | _hours(weekend),
        {
            "nom": "Red Coral Divers",
            "type": 1,
            "affiliation": "",
            "gerant": "Samira Nagy",
            "adresse": "Marina road 7",
            "codePostal": 84511,
            "ville": "Hurghada",
            "pays": "Égypte",
            "telephone": "+20 65 000 0000",
            "email": "dive@redcoral.example",
            "url": "www.redcoral.example",
            "cotation": 3,
            "miseAJour": seconds_of(2014, 11, 3),
            "bapteme": 45.0,
            "plongee_1": "Two dives, full day",
            "prix_1": 60.0,
            "formation_1": "Wreck course",
            "prixForm_1": 180.0,
            "nbPlongees": 12,
        }
        | _hours(daily),
        {
            "nom": "École du Lagon",
            "type": 2,
            "affiliation": "Fédération du Ponant",
            "gerant": "Teva Manoa",
            "codePostal": 98775,
            "ville": "Avatoru",
            "pays": "Polynésie",
            "cotation": 0,
            "miseAJour": seconds_of(2012, 8, 20),
            "bapteme": 70.0,
            "nbPlongees": 4,
        }
        | _hours(daily),
    ]
