<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Epaves</name>
    <message>
        <source>N/A</source>
        <translation>N/A</translation>
    </message>
    <message>
        <source> N/A</source>
        <translation> N/A</translation>
    </message>
    <message>
        <source> cv</source>
        <translation> ch</translation>
    </message>
    <message>
        <source> kW</source>
        <translation> kW</translation>
    </message>
    <message>
        <source> nhp</source>
        <translation> nhp</translation>
    </message>
    <message>
        <source> shp</source>
        <translation> shp</translation>
    </message>
    <message>
        <source> ihp</source>
        <translation> ihp</translation>
    </message>
    <message>
        <source> ...</source>
        <translation> …</translation>
    </message>
    <message>
        <source>Wood</source>
        <translation>Bois</translation>
    </message>
    <message>
        <source>Iron</source>
        <translation>Fer</translation>
    </message>
    <message>
        <source>Polyester</source>
        <translation>Polyester</translation>
    </message>
    <message>
        <source>Concrete</source>
        <translation>Béton</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Bâbord</translation>
    </message>
    <message>
        <source>Starboard</source>
        <translation>Tribord</translation>
    </message>
    <message>
        <source>Easy</source>
        <translation>Facile</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Moyen</translation>
    </message>
    <message>
        <source>Difficult</source>
        <translation>Difficile</translation>
    </message>
    <message>
        <source>Fuel</source>
        <translation>Moteur à essence</translation>
    </message>
    <message>
        <source>Diesel</source>
        <translation>Moteur diesel</translation>
    </message>
    <message>
        <source>Kerosen</source>
        <translation>Moteur à kérosène</translation>
    </message>
    <message>
        <source>Nuclear</source>
        <translation>Nucléaire</translation>
    </message>
    <message>
        <source>Oar</source>
        <translation>Avirons</translation>
    </message>
    <message>
        <source>Steam</source>
        <translation>Vapeur</translation>
    </message>
    <message>
        <source>Sail</source>
        <translation>Voile</translation>
    </message>
    <message>
        <source>Trailed</source>
        <translation>Remorqué</translation>
    </message>
    <message>
        <source>Diesel elec</source>
        <translation>Diesel-électrique</translation>
    </message>
    <message>
        <source>TableView essence</source>
        <translation>Essence</translation>
    </message>
    <message>
        <source>TableView diesel</source>
        <translation>Diesel</translation>
    </message>
    <message>
        <source>TableView kerosene</source>
        <translation>Kérosène</translation>
    </message>
    <message>
        <source>TableView nucleaire</source>
        <translation>Nucléaire</translation>
    </message>
    <message>
        <source>TableView rames</source>
        <translation>Avirons</translation>
    </message>
    <message>
        <source>TableView vapeur</source>
        <translation>Vapeur</translation>
    </message>
    <message>
        <source>TableView voile</source>
        <translation>Voile</translation>
    </message>
    <message>
        <source>TableView remorque</source>
        <translation>Remorqué</translation>
    </message>
    <message>
        <source>TableView diesel elec</source>
        <translation>Diesel-électrique</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>Accès</translation>
    </message>
    <message>
        <source>Armateur</source>
        <translation>Armateur</translation>
    </message>
    <message>
        <source>Bottom type</source>
        <translation>Nature du fond</translation>
    </message>
    <message>
        <source>Build date</source>
        <translation>Date de construction</translation>
    </message>
    <message>
        <source>Build location</source>
        <translation>Lieu de construction</translation>
    </message>
    <message>
        <source>Captain</source>
        <translation>Capitaine</translation>
    </message>
    <message>
        <source>Cargo</source>
        <translation>Chargement</translation>
    </message>
    <message>
        <source>Cards</source>
        <translation>%d épaves</translation>
    </message>
    <message>
        <source>One card</source>
        <translation>1 épave</translation>
    </message>
    <message>
        <source>Characteristics</source>
        <translation>Caractéristiques</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Pays</translation>
    </message>
    <message>
        <source>Crew</source>
        <translation>Équipage</translation>
    </message>
    <message>
        <source>Degree</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Depth unit</source>
        <translation>m</translation>
    </message>
    <message>
        <source>Difficulty</source>
        <translation>Technicité</translation>
    </message>
    <message>
        <source>First visit date</source>
        <translation>Première visite</translation>
    </message>
    <message>
        <source>From port</source>
        <translation>Provenance</translation>
    </message>
    <message>
        <source>GPS</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Harbours</source>
        <translation>Ports d’attache</translation>
    </message>
    <message>
        <source>High depth</source>
        <translation>Point haut</translation>
    </message>
    <message>
        <source>Low depth</source>
        <translation>Point bas</translation>
    </message>
    <message>
        <source>Historic</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Inclination</source>
        <translation>Inclinaison</translation>
    </message>
    <message>
        <source>Interest</source>
        <translation>Intérêt</translation>
    </message>
    <message>
        <source>Land mark 1</source>
        <translation>Relèvement 1</translation>
    </message>
    <message>
        <source>Land mark 2</source>
        <translation>Relèvement 2</translation>
    </message>
    <message>
        <source>Land mark 3</source>
        <translation>Relèvement 3</translation>
    </message>
    <message>
        <source>Land marks</source>
        <translation>Amers</translation>
    </message>
    <message>
        <source>Localisation</source>
        <translation>Repérage</translation>
    </message>
    <message>
        <source>Localisation title</source>
        <translation>Localisation</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>Nationality</source>
        <translation>Nationalité</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Remarques</translation>
    </message>
    <message>
        <source>Ship wreck cause</source>
        <translation>Cause du naufrage</translation>
    </message>
    <message>
        <source>Ship wreck date</source>
        <translation>Date du naufrage</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Site</translation>
    </message>
    <message>
        <source>To port</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Updated on</source>
        <translation>Mise à jour</translation>
    </message>
    <message>
        <source>Wreck length</source>
        <translation>Longueur (m)</translation>
    </message>
    <message>
        <source>Wreck material</source>
        <translation>Matériau</translation>
    </message>
    <message>
        <source>Wreck name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Wreck power</source>
        <translation>Puissance</translation>
    </message>
    <message>
        <source>Wreck previous names</source>
        <translation>Noms précédents</translation>
    </message>
    <message>
        <source>Wreck propulsion</source>
        <translation>Propulsion</translation>
    </message>
    <message>
        <source>Wreck registration</source>
        <translation>Immatriculation</translation>
    </message>
    <message>
        <source>Wreck tonnage</source>
        <translation>Jauge</translation>
    </message>
    <message>
        <source>Wreck type</source>
        <translation>Type de navire</translation>
    </message>
    <message>
        <source>Wreck type machine</source>
        <translation>Type de machine</translation>
    </message>
    <message>
        <source>Wreck wide</source>
        <translation>Largeur (m)</translation>
    </message>
    <message>
        <source>Wrecks</source>
        <translation>Épave</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>One card</source>
        <translation>1 fiche</translation>
    </message>
    <message>
        <source>Cards</source>
        <translation>%d fiches</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>✓</translation>
    </message>
    <message>
        <source>Cotation 0</source>
        <translation>–</translation>
    </message>
    <message>
        <source>Cotation 1</source>
        <translation>★</translation>
    </message>
    <message>
        <source>Cotation 2</source>
        <translation>★★</translation>
    </message>
    <message>
        <source>Cotation 3</source>
        <translation>★★★</translation>
    </message>
    <message>
        <source>Cotation 4</source>
        <translation>★★★★</translation>
    </message>
    <message>
        <source>Cotation 5</source>
        <translation>★★★★★</translation>
    </message>
    <message>
        <source>File dir : %@</source>
        <translation>Fichier : %@</translation>
    </message>
    <message>
        <source>Edition date : %@</source>
        <translation>Édité le : %@</translation>
    </message>
    <message>
        <source>Erase card</source>
        <translation>Supprimer les fiches sélectionnées ?</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Tip add</source>
        <translation>Ajouter une fiche</translation>
    </message>
    <message>
        <source>Tip delete</source>
        <translation>Supprimer les fiches sélectionnées</translation>
    </message>
    <message>
        <source>Tip erase</source>
        <translation>Effacer le formulaire</translation>
    </message>
    <message>
        <source>Tip print</source>
        <translation>Imprimer la liste</translation>
    </message>
    <message>
        <source>Tip save</source>
        <translation>Enregistrer le document</translation>
    </message>
    <message>
        <source>Tip synthesis card</source>
        <translation>Afficher la fiche de synthèse</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>Fermé</translation>
    </message>
    <message>
        <source>One revision</source>
        <translation>Un entretien</translation>
    </message>
    <message>
        <source>Revisions</source>
        <translation>%d entretiens</translation>
    </message>
    <message>
        <source>One intervention</source>
        <translation>Une intervention</translation>
    </message>
    <message>
        <source>Interventions</source>
        <translation>%d interventions</translation>
    </message>
    <message>
        <source>Soda time</source>
        <translation>Temps de chaux</translation>
    </message>
</context>
<context>
    <name>Materiel</name>
    <message>
        <source>En service</source>
        <translation>En service</translation>
    </message>
    <message>
        <source>A reparer</source>
        <translation>À réparer</translation>
    </message>
    <message>
        <source>Reforme</source>
        <translation>Réformé</translation>
    </message>
    <message>
        <source>Gift</source>
        <translation>Donné</translation>
    </message>
    <message>
        <source>Sold</source>
        <translation>Vendu</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Perdu</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>À remplacer</translation>
    </message>
    <message>
        <source>TIV none</source>
        <translation>Sans résultat</translation>
    </message>
    <message>
        <source>TIV accepted</source>
        <translation>Accepté</translation>
    </message>
    <message>
        <source>TIV requalify</source>
        <translation>À requalifier</translation>
    </message>
    <message>
        <source>TIV refused</source>
        <translation>Refusé</translation>
    </message>
    <message>
        <source>Card No</source>
        <translation>Fiche n°</translation>
    </message>
    <message>
        <source>Equipment type</source>
        <translation>Type de matériel</translation>
    </message>
    <message>
        <source>Trade mark</source>
        <translation>Marque</translation>
    </message>
    <message>
        <source>Serial No</source>
        <translation>N° de série</translation>
    </message>
    <message>
        <source>Purchase date</source>
        <translation>Date d’achat</translation>
    </message>
    <message>
        <source>Purchase location</source>
        <translation>Lieu d’achat</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Quantité</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Prix</translation>
    </message>
    <message>
        <source>Facture</source>
        <translation>Facture</translation>
    </message>
    <message>
        <source>Last inspection</source>
        <translation>Dernière révision</translation>
    </message>
    <message>
        <source>Next inspection</source>
        <translation>Prochaine révision</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacité (l)</translation>
    </message>
    <message>
        <source>Service pressure</source>
        <translation>Pression de service (bar)</translation>
    </message>
    <message>
        <source>Test pressure</source>
        <translation>Pression d’épreuve (bar)</translation>
    </message>
    <message>
        <source>First test pressure</source>
        <translation>Première requalification</translation>
    </message>
    <message>
        <source>Last test pressure</source>
        <translation>Dernière requalification</translation>
    </message>
    <message>
        <source>Next test pressure</source>
        <translation>Prochaine requalification</translation>
    </message>
    <message>
        <source>TIV technician</source>
        <translation>Technicien TIV</translation>
    </message>
    <message>
        <source>TIV No</source>
        <translation>N° de TIV</translation>
    </message>
    <message>
        <source>Equipment state</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Remarques</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Matériel</translation>
    </message>
    <message>
        <source>Elapsed time</source>
        <translation>Part de la période écoulée</translation>
    </message>
    <message>
        <source>Out of date</source>
        <translation>Révision du matériel dépassée</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>List of cards</source>
        <translation>Liste des fiches</translation>
    </message>
    <message>
        <source>&amp;Card</source>
        <translation>Fi&amp;che</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>Accès</translation>
    </message>
    <message>
        <source>Access from the shore</source>
        <translation>Accès du bord</translation>
    </message>
    <message>
        <source>Add card</source>
        <translation>Ajout d’une fiche</translation>
    </message>
    <message>
        <source>Edit card</source>
        <translation>Modification d’une fiche</translation>
    </message>
    <message>
        <source>Delete cards</source>
        <translation>Suppression de fiches</translation>
    </message>
    <message>
        <source>Sort</source>
        <translation>Tri</translation>
    </message>
    <message>
        <source>Beam</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Bearing 1</source>
        <translation>Relèvement 1</translation>
    </message>
    <message>
        <source>Bearing 2</source>
        <translation>Relèvement 2</translation>
    </message>
    <message>
        <source>Bearing 3</source>
        <translation>Relèvement 3</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Point bas</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Point haut</translation>
    </message>
    <message>
        <source>Bought on</source>
        <translation>Acheté le</translation>
    </message>
    <message>
        <source>Bound for</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Built at</source>
        <translation>Construit à</translation>
    </message>
    <message>
        <source>Built on</source>
        <translation>Construit le</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacité</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Fiche</translation>
    </message>
    <message>
        <source>Card number</source>
        <translation>Fiche n°</translation>
    </message>
    <message>
        <source>Card without a name</source>
        <translation>Fiche sans nom</translation>
    </message>
    <message>
        <source>Cargo</source>
        <translation>Chargement</translation>
    </message>
    <message>
        <source>Cause</source>
        <translation>Cause</translation>
    </message>
    <message>
        <source>Crew</source>
        <translation>Équipage</translation>
    </message>
    <message>
        <source>Cylinder</source>
        <translation>Bloc</translation>
    </message>
    <message>
        <source>Diving</source>
        <translation>Plongée</translation>
    </message>
    <message>
        <source>Elapsed (%)</source>
        <translation>Écoulé (%)</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Machine</translation>
    </message>
    <message>
        <source>Engine type</source>
        <translation>Type de machine</translation>
    </message>
    <message>
        <source>Finding it</source>
        <translation>Repérage</translation>
    </message>
    <message>
        <source>First test</source>
        <translation>Première épreuve</translation>
    </message>
    <message>
        <source>First visit</source>
        <translation>Première visite</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Provenance</translation>
    </message>
    <message>
        <source>Getting there</source>
        <translation>Accès au site</translation>
    </message>
    <message>
        <source>Heading</source>
        <translation>Cap</translation>
    </message>
    <message>
        <source>Heading known</source>
        <translation>Cap connu</translation>
    </message>
    <message>
        <source>Heel</source>
        <translation>Inclinaison</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Home ports</source>
        <translation>Ports d’attache</translation>
    </message>
    <message>
        <source>Hull</source>
        <translation>Coque</translation>
    </message>
    <message>
        <source>Inspection</source>
        <translation>Révision</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>Technicien</translation>
    </message>
    <message>
        <source>Inspector's number</source>
        <translation>N° du technicien</translation>
    </message>
    <message>
        <source>Interest</source>
        <translation>Intérêt</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Facture</translation>
    </message>
    <message>
        <source>Is a cylinder</source>
        <translation>Est un bloc</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Article</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Kind of vessel</source>
        <translation>Type de navire</translation>
    </message>
    <message>
        <source>Landmarks</source>
        <translation>Amers</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Dernière</translation>
    </message>
    <message>
        <source>Last test</source>
        <translation>Dernière épreuve</translation>
    </message>
    <message>
        <source>Last voyage</source>
        <translation>Dernier voyage</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longueur</translation>
    </message>
    <message>
        <source>Make</source>
        <translation>Marque</translation>
    </message>
    <message>
        <source>Master</source>
        <translation>Capitaine</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Nationality</source>
        <translation>Nationalité</translation>
    </message>
    <message>
        <source>Needs none</source>
        <translation>Sans objet</translation>
    </message>
    <message>
        <source>Next inspection</source>
        <translation>Prochaine révision</translation>
    </message>
    <message>
        <source>Next test</source>
        <translation>Prochaine épreuve</translation>
    </message>
    <message>
        <source>No card selected</source>
        <translation>Aucune fiche sélectionnée</translation>
    </message>
    <message>
        <source>On the bottom</source>
        <translation>Sur le fond</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>Armateur</translation>
    </message>
    <message>
        <source>Period used up</source>
        <translation>Période écoulée</translation>
    </message>
    <message>
        <source>Periodic inspection</source>
        <translation>Révision périodique</translation>
    </message>
    <message>
        <source>Photo &amp; remarks</source>
        <translation>Photo et remarques</translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>Photographie</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Puissance</translation>
    </message>
    <message>
        <source>Previous names</source>
        <translation>Noms précédents</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Prix</translation>
    </message>
    <message>
        <source>Print the list…</source>
        <translation>Imprimer la liste…</translation>
    </message>
    <message>
        <source>Propulsion</source>
        <translation>Propulsion</translation>
    </message>
    <message>
        <source>Purchase</source>
        <translation>Achat</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Quantité</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>Cotation</translation>
    </message>
    <message>
        <source>Registration</source>
        <translation>Immatriculation</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Remarques</translation>
    </message>
    <message>
        <source>Remove the picture</source>
        <translation>Retirer l’image</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Sea bed</source>
        <translation>Nature du fond</translation>
    </message>
    <message>
        <source>Shop</source>
        <translation>Magasin</translation>
    </message>
    <message>
        <source>Still to be visited</source>
        <translation>À visiter</translation>
    </message>
    <message>
        <source>Sunk</source>
        <translation>Naufrage</translation>
    </message>
    <message>
        <source>Sunk on</source>
        <translation>Coulé le</translation>
    </message>
    <message>
        <source>Test pressure</source>
        <translation>Pression d’épreuve</translation>
    </message>
    <message>
        <source>This file is no picture.</source>
        <translation>Ce fichier n’est pas une image.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>Tonnage</source>
        <translation>Jauge</translation>
    </message>
    <message>
        <source>Updated on</source>
        <translation>Mise à jour</translation>
    </message>
    <message>
        <source>Valve</source>
        <translation>Robinetterie</translation>
    </message>
    <message>
        <source>Visit</source>
        <translation>Visite</translation>
    </message>
    <message>
        <source>Visual inspection</source>
        <translation>Inspection visuelle</translation>
    </message>
    <message>
        <source>Visually inspected</source>
        <translation>Inspecté visuellement</translation>
    </message>
    <message>
        <source>Working pressure</source>
        <translation>Pression de service</translation>
    </message>
    <message>
        <source>Wreck</source>
        <translation>Épave</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>The printer does not print.</source>
        <translation>L’imprimante n’imprime pas.</translation>
    </message>
    <message>
        <source>Firm</source>
        <translation>Entreprise</translation>
    </message>
    <message>
        <source>Activity</source>
        <translation>Activité</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Street</source>
        <translation>Rue</translation>
    </message>
    <message>
        <source>Postal code</source>
        <translation>Code postal</translation>
    </message>
    <message>
        <source>Town</source>
        <translation>Ville</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Contact</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Téléphone</translation>
    </message>
    <message>
        <source>Fax</source>
        <translation>Télécopie</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>Courriel</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>Rating &amp; remarks</source>
        <translation>Cotation et remarques</translation>
    </message>
    <message>
        <source>Opening hours</source>
        <translation>Horaires</translation>
    </message>
    <message>
        <source>Affiliation</source>
        <translation>Affiliation</translation>
    </message>
    <message>
        <source>Manager</source>
        <translation>Gérant</translation>
    </message>
    <message>
        <source>Club</source>
        <translation>Club</translation>
    </message>
    <message>
        <source>Dive centre</source>
        <translation>Centre de plongée</translation>
    </message>
    <message>
        <source>Diving school</source>
        <translation>École de plongée</translation>
    </message>
    <message>
        <source>Dive boat</source>
        <translation>Bateau de plongée</translation>
    </message>
    <message>
        <source>Other kind</source>
        <translation>Autre</translation>
    </message>
    <message>
        <source>Mobile phone</source>
        <translation>Portable</translation>
    </message>
    <message>
        <source>€</source>
        <translation>€</translation>
    </message>
    <message>
        <source>Introductory dive</source>
        <translation>Baptême</translation>
    </message>
    <message>
        <source>Courses</source>
        <translation>Formations</translation>
    </message>
    <message>
        <source>Prices</source>
        <translation>Tarifs</translation>
    </message>
    <message>
        <source>Dives made here</source>
        <translation>Plongées faites ici</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Document</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Issued by</source>
        <translation>Émetteur</translation>
    </message>
    <message>
        <source>Issued on</source>
        <translation>Établi le</translation>
    </message>
    <message>
        <source>Renewal</source>
        <translation>Renouvellement</translation>
    </message>
    <message>
        <source>Must be renewed</source>
        <translation>À renouveler</translation>
    </message>
    <message>
        <source>Renewal on</source>
        <translation>Renouvelable le</translation>
    </message>
    <message>
        <source>Scanned copy</source>
        <translation>Photocopie</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>Pièce</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Référence</translation>
    </message>
    <message>
        <source>Used for</source>
        <translation>Utilisation</translation>
    </message>
    <message>
        <source>Stock</source>
        <translation>Stock</translation>
    </message>
    <message>
        <source>In stock</source>
        <translation>En stock</translation>
    </message>
    <message>
        <source>Reserve</source>
        <translation>Réserve</translation>
    </message>
    <message>
        <source>Full stock</source>
        <translation>Stock maximum</translation>
    </message>
    <message>
        <source>Kept at</source>
        <translation>Rangement</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Inventaire</translation>
    </message>
    <message>
        <source>Not counted in inventories</source>
        <translation>Hors inventaire</translation>
    </message>
    <message>
        <source>Counted on</source>
        <translation>Inventorié le</translation>
    </message>
    <message>
        <source>Inventory &amp; remarks</source>
        <translation>Inventaire et remarques</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>Spare part</source>
        <translation>Consommable</translation>
    </message>
    <message>
        <source>Time run</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Heures</translation>
    </message>
    <message>
        <source>Oil</source>
        <translation>Huile</translation>
    </message>
    <message>
        <source>Air filter</source>
        <translation>Filtre à air</translation>
    </message>
    <message>
        <source>Cartridge</source>
        <translation>Cartouche</translation>
    </message>
    <message>
        <source>Charcoal</source>
        <translation>Charbon</translation>
    </message>
    <message>
        <source>Alumina</source>
        <translation>Alumine</translation>
    </message>
    <message>
        <source>Sieve</source>
        <translation>Tamis</translation>
    </message>
    <message>
        <source>Dusting</source>
        <translation>Dépoussiérage</translation>
    </message>
    <message>
        <source>Checks</source>
        <translation>Contrôles</translation>
    </message>
    <message>
        <source>Valves</source>
        <translation>Soupapes</translation>
    </message>
    <message>
        <source>Oil in air</source>
        <translation>Huile (air)</translation>
    </message>
    <message>
        <source>CO2</source>
        <translation>CO2</translation>
    </message>
    <message>
        <source>CO</source>
        <translation>CO</translation>
    </message>
    <message>
        <source>Mineral oil</source>
        <translation>Huile minérale</translation>
    </message>
    <message>
        <source>Synthetic oil</source>
        <translation>Huile de synthèse</translation>
    </message>
    <message>
        <source>Filter cleaned</source>
        <translation>Filtre nettoyé</translation>
    </message>
    <message>
        <source>Filter replaced</source>
        <translation>Filtre remplacé</translation>
    </message>
    <message>
        <source>Valves verified</source>
        <translation>Soupapes vérifiées</translation>
    </message>
    <message>
        <source>Valves recalibrated</source>
        <translation>Soupapes retarées</translation>
    </message>
    <message>
        <source>ml/m³</source>
        <translation>ml/m³</translation>
    </message>
    <message>
        <source>ppm</source>
        <translation>ppm</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Prestation</translation>
    </message>
    <message>
        <source>Hours in all</source>
        <translation>Heures cumulées</translation>
    </message>
    <message>
        <source>Oil and air filter</source>
        <translation>Huile et filtre à air</translation>
    </message>
    <message>
        <source>Oil changed</source>
        <translation>Vidange faite</translation>
    </message>
    <message>
        <source>Air filter serviced</source>
        <translation>Filtre à air révisé</translation>
    </message>
    <message>
        <source>Purification</source>
        <translation>Épuration</translation>
    </message>
    <message>
        <source>Whole cartridge replaced</source>
        <translation>Cartouche complète remplacée</translation>
    </message>
    <message>
        <source>Activated charcoal renewed</source>
        <translation>Charbon actif renouvelé</translation>
    </message>
    <message>
        <source>Activated alumina renewed</source>
        <translation>Alumine activée renouvelée</translation>
    </message>
    <message>
        <source>Molecular sieve renewed</source>
        <translation>Tamis moléculaire renouvelé</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>Machine</translation>
    </message>
    <message>
        <source>Cleaned of dust</source>
        <translation>Dépoussiérage fait</translation>
    </message>
    <message>
        <source>Checks made</source>
        <translation>Contrôles faits</translation>
    </message>
    <message>
        <source>Safety valves serviced</source>
        <translation>Soupapes révisées</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Opérations</translation>
    </message>
    <message>
        <source>Air analysis (-1: not measured)</source>
        <translation>Analyse de l’air (-1 : non mesuré)</translation>
    </message>
    <message>
        <source>mg/m³</source>
        <translation>mg/m³</translation>
    </message>
    <message>
        <source>Analyses &amp; remarks</source>
        <translation>Analyses et remarques</translation>
    </message>
    <message>
        <source>Compressor service</source>
        <translation>Entretien du compresseur</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lundi</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Mardi</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mercredi</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Jeudi</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Vendredi</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samedi</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Dimanche</translation>
    </message>
    <message>
        <source>to</source>
        <translation>à</translation>
    </message>
    <message>
        <source>and from</source>
        <translation>et de</translation>
    </message>
    <message>
        <source>Unit price</source>
        <translation>Prix unitaire</translation>
    </message>
    <message>
        <source>Value for money</source>
        <translation>Qualité / prix</translation>
    </message>
    <message>
        <source>Efficiency</source>
        <translation>Efficacité</translation>
    </message>
    <message>
        <source>Expense planned</source>
        <translation>Dépense prévue</translation>
    </message>
    <message>
        <source>at</source>
        <translation>à</translation>
    </message>
    <message>
        <source>Base price</source>
        <translation>Prix de base</translation>
    </message>
    <message>
        <source>Supplement 1</source>
        <translation>Supplément 1</translation>
    </message>
    <message>
        <source>Supplement 2</source>
        <translation>Supplément 2</translation>
    </message>
    <message>
        <source>Supplement 3</source>
        <translation>Supplément 3</translation>
    </message>
    <message>
        <source>Supplement 4</source>
        <translation>Supplément 4</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Not in the total</source>
        <translation>Hors total</translation>
    </message>
    <message>
        <source>Further price</source>
        <translation>Autre prix</translation>
    </message>
    <message>
        <source>units for</source>
        <translation>unités pour</translation>
    </message>
    <message>
        <source>Prepaid cards</source>
        <translation>Cartes prépayées</translation>
    </message>
    <message>
        <source>There are prepaid cards</source>
        <translation>Prix dégressifs par carte</translation>
    </message>
    <message>
        <source>Card 1</source>
        <translation>Carte 1</translation>
    </message>
    <message>
        <source>Card 2</source>
        <translation>Carte 2</translation>
    </message>
    <message>
        <source>Card 3</source>
        <translation>Carte 3</translation>
    </message>
    <message>
        <source>Card 4</source>
        <translation>Carte 4</translation>
    </message>
    <message>
        <source>Service and prices</source>
        <translation>Prestation et tarifs</translation>
    </message>
    <message>
        <source>Loop time</source>
        <translation>Temps recycleur</translation>
    </message>
    <message>
        <source>Absorbent time</source>
        <translation>Temps chaux</translation>
    </message>
    <message>
        <source>Absorbent</source>
        <translation>Chaux</translation>
    </message>
    <message>
        <source>Disinfection</source>
        <translation>Désinfection</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Pile</translation>
    </message>
    <message>
        <source>Cells</source>
        <translation>Cellules</translation>
    </message>
    <message>
        <source>O2 pressure</source>
        <translation>MP O2</translation>
    </message>
    <message>
        <source>Injector</source>
        <translation>Injecteur</translation>
    </message>
    <message>
        <source>O-rings</source>
        <translation>Joints</translation>
    </message>
    <message>
        <source>Head</source>
        <translation>Tête</translation>
    </message>
    <message>
        <source>Scrubber</source>
        <translation>Canister</translation>
    </message>
    <message>
        <source>Intervention</source>
        <translation>Intervention</translation>
    </message>
    <message>
        <source>Work done</source>
        <translation>Travaux effectués</translation>
    </message>
    <message>
        <source>CO2 absorbent changed</source>
        <translation>Chaux remplacée</translation>
    </message>
    <message>
        <source>Loop disinfected</source>
        <translation>Boucle désinfectée</translation>
    </message>
    <message>
        <source>Battery changed</source>
        <translation>Pile changée</translation>
    </message>
    <message>
        <source>Injector serviced</source>
        <translation>Injecteur révisé</translation>
    </message>
    <message>
        <source>Valves serviced</source>
        <translation>Clapets révisés</translation>
    </message>
    <message>
        <source>O-rings changed</source>
        <translation>Joints changés</translation>
    </message>
    <message>
        <source>Scrubber serviced</source>
        <translation>Canister révisé</translation>
    </message>
    <message>
        <source>Electronic head serviced</source>
        <translation>Tête électronique révisée</translation>
    </message>
    <message>
        <source>O2 intermediate pressure</source>
        <translation>Moyenne pression O2</translation>
    </message>
    <message>
        <source>Cells replaced</source>
        <translation>Cellules remplacées</translation>
    </message>
    <message>
        <source>How many</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Cell 1</source>
        <translation>Cellule 1</translation>
    </message>
    <message>
        <source>Cell 2</source>
        <translation>Cellule 2</translation>
    </message>
    <message>
        <source>Cell 3</source>
        <translation>Cellule 3</translation>
    </message>
    <message>
        <source>Cell 4</source>
        <translation>Cellule 4</translation>
    </message>
    <message>
        <source>Cell 5</source>
        <translation>Cellule 5</translation>
    </message>
    <message>
        <source>Rebreather intervention</source>
        <translation>Intervention sur le recycleur</translation>
    </message>
    <message>
        <source>Service done</source>
        <translation>Entretien</translation>
    </message>
    <message>
        <source>Equipment state</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Hull material</source>
        <translation>Matériau</translation>
    </message>
    <message>
        <source>Ship</source>
        <translation>Navire</translation>
    </message>
    <message>
        <source>Loop valves</source>
        <translation>Clapets</translation>
    </message>
    <message>
        <source>Choose a page</source>
        <translation>Choisir une page</translation>
    </message>
    <message>
        <source>&amp;Page</source>
        <translation>&amp;Page</translation>
    </message>
    <message>
        <source>Cells fitted</source>
        <translation>Cellules posées</translation>
    </message>
    <message>
        <source>Cell type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Fitted on</source>
        <translation>Posée le</translation>
    </message>
    <message>
        <source>End of life</source>
        <translation>Fin de vie</translation>
    </message>
    <message>
        <source>Life used</source>
        <translation>Vie écoulée</translation>
    </message>
    <message>
        <source>Offer 1</source>
        <translation>Formule 1</translation>
    </message>
    <message>
        <source>Offer 2</source>
        <translation>Formule 2</translation>
    </message>
    <message>
        <source>Offer 3</source>
        <translation>Formule 3</translation>
    </message>
    <message>
        <source>Offer 4</source>
        <translation>Formule 4</translation>
    </message>
    <message>
        <source>Offer 5</source>
        <translation>Formule 5</translation>
    </message>
    <message>
        <source>Course 1</source>
        <translation>Formation 1</translation>
    </message>
    <message>
        <source>Course 2</source>
        <translation>Formation 2</translation>
    </message>
    <message>
        <source>Course 3</source>
        <translation>Formation 3</translation>
    </message>
    <message>
        <source>Course 4</source>
        <translation>Formation 4</translation>
    </message>
    <message>
        <source>Course 5</source>
        <translation>Formation 5</translation>
    </message>
    <message>
        <source>Course 6</source>
        <translation>Formation 6</translation>
    </message>
</context>
<context>
    <name>Entreprises</name>
    <message>
        <source>Monday</source>
        <translation>Lundi</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Mardi</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mercredi</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Jeudi</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Vendredi</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samedi</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Dimanche</translation>
    </message>
    <message>
        <source>Schedules</source>
        <translation>Horaires</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Entreprise</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Téléphone</translation>
    </message>
    <message>
        <source>Fax</source>
        <translation>Télécopie</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>Courriel</translation>
    </message>
    <message>
        <source>URL</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>Activity</source>
        <translation>Activité</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Remarques</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mise à jour</translation>
    </message>
</context>
<context>
    <name>Budget</name>
    <message>
        <source>N/A</source>
        <translation>N/C</translation>
    </message>
    <message>
        <source>Very bad</source>
        <translation>Très mauvais</translation>
    </message>
    <message>
        <source>Bad</source>
        <translation>Mauvais</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Moyen</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Bon</translation>
    </message>
    <message>
        <source>Very good</source>
        <translation>Très bon</translation>
    </message>
    <message>
        <source>Very inefficient</source>
        <translation>Très inefficace</translation>
    </message>
    <message>
        <source>Inefficient</source>
        <translation>Inefficace</translation>
    </message>
    <message>
        <source>Satisfying</source>
        <translation>Satisfaisant</translation>
    </message>
    <message>
        <source>Very satisfying</source>
        <translation>Très satisfaisant</translation>
    </message>
    <message>
        <source>Discount price</source>
        <translation>%.2f € l’unité</translation>
    </message>
    <message>
        <source>Supplement</source>
        <translation>Supplément</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Quantité</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Carte</translation>
    </message>
    <message>
        <source>Units at</source>
        <translation>Unités à</translation>
    </message>
    <message>
        <source>Money</source>
        <translation>€</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Prévision de budget</translation>
    </message>
    <message>
        <source>Prestation</source>
        <translation>Prestation</translation>
    </message>
    <message>
        <source>Price per unit</source>
        <translation>Prix unitaire</translation>
    </message>
    <message>
        <source>Entreprise</source>
        <translation>Entreprise</translation>
    </message>
    <message>
        <source>Cotation</source>
        <translation>Rapport qualité / prix</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Efficacité</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Remarques</translation>
    </message>
</context>
<context>
    <name>Structures</name>
    <message>
        <source>Prices</source>
        <translation>Tarifs</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lundi</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Mardi</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mercredi</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Jeudi</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Vendredi</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samedi</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Dimanche</translation>
    </message>
    <message>
        <source>Schedules</source>
        <translation>Horaires</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Structure</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Affiliation</source>
        <translation>Affiliation</translation>
    </message>
    <message>
        <source>Gerant</source>
        <translation>Gérant</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Téléphone</translation>
    </message>
    <message>
        <source>Mobile</source>
        <translation>Portable</translation>
    </message>
    <message>
        <source>Fax</source>
        <translation>Télécopie</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>Courriel</translation>
    </message>
    <message>
        <source>URL</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>Cotation</source>
        <translation>Cotation</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mise à jour</translation>
    </message>
    <message>
        <source>NBDives</source>
        <translation>Plongées faites ici</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Remarques</translation>
    </message>
</context>
<context>
    <name>Documents</name>
    <message>
        <source>TableView attestation</source>
        <translation>Attestation</translation>
    </message>
    <message>
        <source>TableView certification</source>
        <translation>Brevet</translation>
    </message>
    <message>
        <source>TableView certifMed</source>
        <translation>Certificat médical</translation>
    </message>
    <message>
        <source>TableView facture</source>
        <translation>Facture</translation>
    </message>
    <message>
        <source>TableView licence</source>
        <translation>Licence</translation>
    </message>
    <message>
        <source>TableView autre</source>
        <translation>Autre</translation>
    </message>
</context>
<context>
    <name>Consommables</name>
    <message>
        <source>Inventory</source>
        <translation>Consommable</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Référence</translation>
    </message>
    <message>
        <source>Trade mark</source>
        <translation>Marque</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Utilisation</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>En stock</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Rangement</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Remarques</translation>
    </message>
</context>
<context>
    <name>Compresseur</name>
    <message>
        <source>TableView replacement</source>
        <translation>Remplacement</translation>
    </message>
    <message>
        <source>TableView cleaning</source>
        <translation>Nettoyage</translation>
    </message>
    <message>
        <source>TableView retarage</source>
        <translation>Retarage</translation>
    </message>
    <message>
        <source>TableView verification</source>
        <translation>Vérification</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Opérations</translation>
    </message>
    <message>
        <source>Vidange synthesis</source>
        <translation>Vidange, huile de synthèse</translation>
    </message>
    <message>
        <source>Vidange mineral</source>
        <translation>Vidange, huile minérale</translation>
    </message>
    <message>
        <source>Filter replacement</source>
        <translation>Filtre à air remplacé</translation>
    </message>
    <message>
        <source>Filter cleaning</source>
        <translation>Filtre à air nettoyé</translation>
    </message>
    <message>
        <source>Cardridge</source>
        <translation>Cartouche d’épuration remplacée</translation>
    </message>
    <message>
        <source>Charcoal</source>
        <translation>Charbon actif renouvelé</translation>
    </message>
    <message>
        <source>Alumin</source>
        <translation>Alumine activée renouvelée</translation>
    </message>
    <message>
        <source>Molecular mesh</source>
        <translation>Tamis moléculaire renouvelé</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>Dépoussiérage</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Contrôles</translation>
    </message>
    <message>
        <source>Valves</source>
        <translation>Soupapes</translation>
    </message>
    <message>
        <source>Retarage</source>
        <translation>Retarage</translation>
    </message>
    <message>
        <source>Verification</source>
        <translation>Vérification</translation>
    </message>
    <message>
        <source>ppm</source>
        <translation>ppm</translation>
    </message>
    <message>
        <source>ml/m3</source>
        <translation>ml/m³</translation>
    </message>
    <message>
        <source>Analyzes</source>
        <translation>Analyses de l’air</translation>
    </message>
    <message>
        <source>Analyse huile</source>
        <translation>Huile</translation>
    </message>
    <message>
        <source>mg/m3</source>
        <translation>mg/m³</translation>
    </message>
    <message>
        <source>Analyse CO2</source>
        <translation>CO2</translation>
    </message>
    <message>
        <source>Analyse CO</source>
        <translation>CO</translation>
    </message>
    <message>
        <source>Analyse H2O</source>
        <translation>Eau</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Entretien du compresseur</translation>
    </message>
    <message>
        <source>Trade mark</source>
        <translation>Marque</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Entretien n°</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Sum time</source>
        <translation>Heures cumulées</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Remarques</translation>
    </message>
</context>
<context>
    <name>Rebreather</name>
    <message>
        <source>Cell 1</source>
        <translation>Cellule 1</translation>
    </message>
    <message>
        <source>Cell 2</source>
        <translation>Cellule 2</translation>
    </message>
    <message>
        <source>Cell 3</source>
        <translation>Cellule 3</translation>
    </message>
    <message>
        <source>Cell 4</source>
        <translation>Cellule 4</translation>
    </message>
    <message>
        <source>Cell 5</source>
        <translation>Cellule 5</translation>
    </message>
    <message>
        <source>0 cells</source>
        <translation>0</translation>
    </message>
    <message>
        <source>1 cell</source>
        <translation>1</translation>
    </message>
    <message>
        <source>2 cells</source>
        <translation>2</translation>
    </message>
    <message>
        <source>3 cells</source>
        <translation>3</translation>
    </message>
    <message>
        <source>4 cells</source>
        <translation>4</translation>
    </message>
    <message>
        <source>5 cells</source>
        <translation>5</translation>
    </message>
    <message>
        <source>Cells</source>
        <translation>Cellules à oxygène</translation>
    </message>
    <message>
        <source>Sofnolime</source>
        <translation>Chaux remplacée</translation>
    </message>
    <message>
        <source>Disinfection</source>
        <translation>Désinfection</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Pile changée</translation>
    </message>
    <message>
        <source>Cells replacement</source>
        <translation>Cellules remplacées</translation>
    </message>
    <message>
        <source>MpO2</source>
        <translation>Moyenne pression O2</translation>
    </message>
    <message>
        <source>Injector</source>
        <translation>Injecteur révisé</translation>
    </message>
    <message>
        <source>Valve</source>
        <translation>Clapets révisés</translation>
    </message>
    <message>
        <source>ORing</source>
        <translation>Joints changés</translation>
    </message>
    <message>
        <source>Electronic head</source>
        <translation>Tête électronique révisée</translation>
    </message>
    <message>
        <source>Scrubber</source>
        <translation>Canister révisé</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Entretien du recycleur</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Rebreather history</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Rebreather time</source>
        <translation>Temps recycleur</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Remarques</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>No earlier intervention</source>
        <translation>il n’y a pas d’intervention antérieure dont reprendre les cellules : rien n’a été ajouté</translation>
    </message>
</context>
</TS>
