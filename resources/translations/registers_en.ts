<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
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
        <translation> hp</translation>
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
        <translation>Wood</translation>
    </message>
    <message>
        <source>Iron</source>
        <translation>Iron</translation>
    </message>
    <message>
        <source>Polyester</source>
        <translation>Polyester</translation>
    </message>
    <message>
        <source>Concrete</source>
        <translation>Concrete</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>To port</translation>
    </message>
    <message>
        <source>Starboard</source>
        <translation>To starboard</translation>
    </message>
    <message>
        <source>Easy</source>
        <translation>Easy</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>Difficult</source>
        <translation>Difficult</translation>
    </message>
    <message>
        <source>Fuel</source>
        <translation>Petrol engine</translation>
    </message>
    <message>
        <source>Diesel</source>
        <translation>Diesel engine</translation>
    </message>
    <message>
        <source>Kerosen</source>
        <translation>Kerosene engine</translation>
    </message>
    <message>
        <source>Nuclear</source>
        <translation>Nuclear</translation>
    </message>
    <message>
        <source>Oar</source>
        <translation>Oars</translation>
    </message>
    <message>
        <source>Steam</source>
        <translation>Steam</translation>
    </message>
    <message>
        <source>Sail</source>
        <translation>Sail</translation>
    </message>
    <message>
        <source>Trailed</source>
        <translation>Towed</translation>
    </message>
    <message>
        <source>Diesel elec</source>
        <translation>Diesel-electric</translation>
    </message>
    <message>
        <source>TableView essence</source>
        <translation>Petrol</translation>
    </message>
    <message>
        <source>TableView diesel</source>
        <translation>Diesel</translation>
    </message>
    <message>
        <source>TableView kerosene</source>
        <translation>Kerosene</translation>
    </message>
    <message>
        <source>TableView nucleaire</source>
        <translation>Nuclear</translation>
    </message>
    <message>
        <source>TableView rames</source>
        <translation>Oars</translation>
    </message>
    <message>
        <source>TableView vapeur</source>
        <translation>Steam</translation>
    </message>
    <message>
        <source>TableView voile</source>
        <translation>Sail</translation>
    </message>
    <message>
        <source>TableView remorque</source>
        <translation>Towed</translation>
    </message>
    <message>
        <source>TableView diesel elec</source>
        <translation>Diesel-electric</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>Access</translation>
    </message>
    <message>
        <source>Armateur</source>
        <translation>Owner</translation>
    </message>
    <message>
        <source>Bottom type</source>
        <translation>Sea bed</translation>
    </message>
    <message>
        <source>Build date</source>
        <translation>Built on</translation>
    </message>
    <message>
        <source>Build location</source>
        <translation>Built at</translation>
    </message>
    <message>
        <source>Captain</source>
        <translation>Master</translation>
    </message>
    <message>
        <source>Cargo</source>
        <translation>Cargo</translation>
    </message>
    <message>
        <source>Cards</source>
        <translation>%d wrecks</translation>
    </message>
    <message>
        <source>One card</source>
        <translation>1 wreck</translation>
    </message>
    <message>
        <source>Characteristics</source>
        <translation>Characteristics</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Country</translation>
    </message>
    <message>
        <source>Crew</source>
        <translation>Crew</translation>
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
        <translation>Difficulty</translation>
    </message>
    <message>
        <source>First visit date</source>
        <translation>First visit</translation>
    </message>
    <message>
        <source>From port</source>
        <translation>From</translation>
    </message>
    <message>
        <source>GPS</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Harbours</source>
        <translation>Home ports</translation>
    </message>
    <message>
        <source>High depth</source>
        <translation>Shallowest point</translation>
    </message>
    <message>
        <source>Low depth</source>
        <translation>Deepest point</translation>
    </message>
    <message>
        <source>Historic</source>
        <translation>History</translation>
    </message>
    <message>
        <source>Inclination</source>
        <translation>Heel</translation>
    </message>
    <message>
        <source>Interest</source>
        <translation>Interest</translation>
    </message>
    <message>
        <source>Land mark 1</source>
        <translation>Bearing 1</translation>
    </message>
    <message>
        <source>Land mark 2</source>
        <translation>Bearing 2</translation>
    </message>
    <message>
        <source>Land mark 3</source>
        <translation>Bearing 3</translation>
    </message>
    <message>
        <source>Land marks</source>
        <translation>Landmarks</translation>
    </message>
    <message>
        <source>Localisation</source>
        <translation>Finding it</translation>
    </message>
    <message>
        <source>Localisation title</source>
        <translation>Location</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Place</translation>
    </message>
    <message>
        <source>Nationality</source>
        <translation>Nationality</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Heading</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Remarks</translation>
    </message>
    <message>
        <source>Ship wreck cause</source>
        <translation>Cause of sinking</translation>
    </message>
    <message>
        <source>Ship wreck date</source>
        <translation>Sunk on</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Site</translation>
    </message>
    <message>
        <source>To port</source>
        <translation>Bound for</translation>
    </message>
    <message>
        <source>Updated on</source>
        <translation>Updated on</translation>
    </message>
    <message>
        <source>Wreck length</source>
        <translation>Length (m)</translation>
    </message>
    <message>
        <source>Wreck material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>Wreck name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Wreck power</source>
        <translation>Power</translation>
    </message>
    <message>
        <source>Wreck previous names</source>
        <translation>Previous names</translation>
    </message>
    <message>
        <source>Wreck propulsion</source>
        <translation>Propulsion</translation>
    </message>
    <message>
        <source>Wreck registration</source>
        <translation>Registration</translation>
    </message>
    <message>
        <source>Wreck tonnage</source>
        <translation>Tonnage</translation>
    </message>
    <message>
        <source>Wreck type</source>
        <translation>Kind of vessel</translation>
    </message>
    <message>
        <source>Wreck type machine</source>
        <translation>Engine type</translation>
    </message>
    <message>
        <source>Wreck wide</source>
        <translation>Beam (m)</translation>
    </message>
    <message>
        <source>Wrecks</source>
        <translation>Wreck</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>One card</source>
        <translation>1 card</translation>
    </message>
    <message>
        <source>Cards</source>
        <translation>%d cards</translation>
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
        <translation>File: %@</translation>
    </message>
    <message>
        <source>Edition date : %@</source>
        <translation>Printed on: %@</translation>
    </message>
    <message>
        <source>Erase card</source>
        <translation>Delete the selected cards?</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Tip add</source>
        <translation>Add a card</translation>
    </message>
    <message>
        <source>Tip delete</source>
        <translation>Delete the selected cards</translation>
    </message>
    <message>
        <source>Tip erase</source>
        <translation>Erase the form</translation>
    </message>
    <message>
        <source>Tip print</source>
        <translation>Print the list</translation>
    </message>
    <message>
        <source>Tip save</source>
        <translation>Save the document</translation>
    </message>
    <message>
        <source>Tip synthesis card</source>
        <translation>Show the card of the selected record</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>Closed</translation>
    </message>
    <message>
        <source>One revision</source>
        <translation>One service</translation>
    </message>
    <message>
        <source>Revisions</source>
        <translation>%d services</translation>
    </message>
    <message>
        <source>One intervention</source>
        <translation>One intervention</translation>
    </message>
    <message>
        <source>Interventions</source>
        <translation>%d interventions</translation>
    </message>
    <message>
        <source>Soda time</source>
        <translation>Absorbent time</translation>
    </message>
</context>
<context>
    <name>Materiel</name>
    <message>
        <source>En service</source>
        <translation>In service</translation>
    </message>
    <message>
        <source>A reparer</source>
        <translation>To repair</translation>
    </message>
    <message>
        <source>Reforme</source>
        <translation>Retired</translation>
    </message>
    <message>
        <source>Gift</source>
        <translation>Given away</translation>
    </message>
    <message>
        <source>Sold</source>
        <translation>Sold</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Lost</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>To replace</translation>
    </message>
    <message>
        <source>TIV none</source>
        <translation>No result</translation>
    </message>
    <message>
        <source>TIV accepted</source>
        <translation>Accepted</translation>
    </message>
    <message>
        <source>TIV requalify</source>
        <translation>To be tested again</translation>
    </message>
    <message>
        <source>TIV refused</source>
        <translation>Refused</translation>
    </message>
    <message>
        <source>Card No</source>
        <translation>Card number</translation>
    </message>
    <message>
        <source>Equipment type</source>
        <translation>Kind</translation>
    </message>
    <message>
        <source>Trade mark</source>
        <translation>Make</translation>
    </message>
    <message>
        <source>Serial No</source>
        <translation>Serial number</translation>
    </message>
    <message>
        <source>Purchase date</source>
        <translation>Bought on</translation>
    </message>
    <message>
        <source>Purchase location</source>
        <translation>Shop</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Quantity</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Price</translation>
    </message>
    <message>
        <source>Facture</source>
        <translation>Invoice</translation>
    </message>
    <message>
        <source>Last inspection</source>
        <translation>Last inspection</translation>
    </message>
    <message>
        <source>Next inspection</source>
        <translation>Next inspection</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacity (l)</translation>
    </message>
    <message>
        <source>Service pressure</source>
        <translation>Working pressure (bar)</translation>
    </message>
    <message>
        <source>Test pressure</source>
        <translation>Test pressure (bar)</translation>
    </message>
    <message>
        <source>First test pressure</source>
        <translation>First hydrostatic test</translation>
    </message>
    <message>
        <source>Last test pressure</source>
        <translation>Last hydrostatic test</translation>
    </message>
    <message>
        <source>Next test pressure</source>
        <translation>Next hydrostatic test</translation>
    </message>
    <message>
        <source>TIV technician</source>
        <translation>Visual inspector</translation>
    </message>
    <message>
        <source>TIV No</source>
        <translation>Visual inspector’s number</translation>
    </message>
    <message>
        <source>Equipment state</source>
        <translation>State</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Remarks</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Equipment</translation>
    </message>
    <message>
        <source>Elapsed time</source>
        <translation>Share of the inspection period</translation>
    </message>
    <message>
        <source>Out of date</source>
        <translation>Inspection is out of date now</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>List of cards</source>
        <translation>List of cards</translation>
    </message>
    <message>
        <source>&amp;Card</source>
        <translation>&amp;Card</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>Access</translation>
    </message>
    <message>
        <source>Access from the shore</source>
        <translation>Access from the shore</translation>
    </message>
    <message>
        <source>Add card</source>
        <translation>Add card</translation>
    </message>
    <message>
        <source>Edit card</source>
        <translation>Edit card</translation>
    </message>
    <message>
        <source>Delete cards</source>
        <translation>Delete cards</translation>
    </message>
    <message>
        <source>Sort</source>
        <translation>Sort</translation>
    </message>
    <message>
        <source>Beam</source>
        <translation>Beam</translation>
    </message>
    <message>
        <source>Bearing 1</source>
        <translation>Bearing 1</translation>
    </message>
    <message>
        <source>Bearing 2</source>
        <translation>Bearing 2</translation>
    </message>
    <message>
        <source>Bearing 3</source>
        <translation>Bearing 3</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Bottom</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Top</translation>
    </message>
    <message>
        <source>Bought on</source>
        <translation>Bought on</translation>
    </message>
    <message>
        <source>Bound for</source>
        <translation>Bound for</translation>
    </message>
    <message>
        <source>Built at</source>
        <translation>Built at</translation>
    </message>
    <message>
        <source>Built on</source>
        <translation>Built on</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacity</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Card</translation>
    </message>
    <message>
        <source>Card number</source>
        <translation>Card number</translation>
    </message>
    <message>
        <source>Card without a name</source>
        <translation>Card without a name</translation>
    </message>
    <message>
        <source>Cargo</source>
        <translation>Cargo</translation>
    </message>
    <message>
        <source>Cause</source>
        <translation>Cause</translation>
    </message>
    <message>
        <source>Crew</source>
        <translation>Crew</translation>
    </message>
    <message>
        <source>Cylinder</source>
        <translation>Cylinder</translation>
    </message>
    <message>
        <source>Diving</source>
        <translation>Diving</translation>
    </message>
    <message>
        <source>Elapsed (%)</source>
        <translation>Elapsed (%)</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Engine</translation>
    </message>
    <message>
        <source>Engine type</source>
        <translation>Engine type</translation>
    </message>
    <message>
        <source>Finding it</source>
        <translation>Finding it</translation>
    </message>
    <message>
        <source>First test</source>
        <translation>First test</translation>
    </message>
    <message>
        <source>First visit</source>
        <translation>First visit</translation>
    </message>
    <message>
        <source>From</source>
        <translation>From</translation>
    </message>
    <message>
        <source>Getting there</source>
        <translation>Getting there</translation>
    </message>
    <message>
        <source>Heading</source>
        <translation>Heading</translation>
    </message>
    <message>
        <source>Heading known</source>
        <translation>Heading known</translation>
    </message>
    <message>
        <source>Heel</source>
        <translation>Heel</translation>
    </message>
    <message>
        <source>History</source>
        <translation>History</translation>
    </message>
    <message>
        <source>Home ports</source>
        <translation>Home ports</translation>
    </message>
    <message>
        <source>Hull</source>
        <translation>Hull</translation>
    </message>
    <message>
        <source>Inspection</source>
        <translation>Inspection</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>Inspector</translation>
    </message>
    <message>
        <source>Inspector's number</source>
        <translation>Inspector's number</translation>
    </message>
    <message>
        <source>Interest</source>
        <translation>Interest</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Invoice</translation>
    </message>
    <message>
        <source>Is a cylinder</source>
        <translation>Is a cylinder</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Item</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Kind</translation>
    </message>
    <message>
        <source>Kind of vessel</source>
        <translation>Kind of vessel</translation>
    </message>
    <message>
        <source>Landmarks</source>
        <translation>Landmarks</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Last</translation>
    </message>
    <message>
        <source>Last test</source>
        <translation>Last test</translation>
    </message>
    <message>
        <source>Last voyage</source>
        <translation>Last voyage</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Length</translation>
    </message>
    <message>
        <source>Make</source>
        <translation>Make</translation>
    </message>
    <message>
        <source>Master</source>
        <translation>Master</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Nationality</source>
        <translation>Nationality</translation>
    </message>
    <message>
        <source>Needs none</source>
        <translation>Needs none</translation>
    </message>
    <message>
        <source>Next inspection</source>
        <translation>Next inspection</translation>
    </message>
    <message>
        <source>Next test</source>
        <translation>Next test</translation>
    </message>
    <message>
        <source>No card selected</source>
        <translation>No card selected</translation>
    </message>
    <message>
        <source>On the bottom</source>
        <translation>On the bottom</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>Owner</translation>
    </message>
    <message>
        <source>Period used up</source>
        <translation>Period used up</translation>
    </message>
    <message>
        <source>Periodic inspection</source>
        <translation>Periodic inspection</translation>
    </message>
    <message>
        <source>Photo &amp; remarks</source>
        <translation>Photo &amp; remarks</translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>Photograph</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Power</translation>
    </message>
    <message>
        <source>Previous names</source>
        <translation>Previous names</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Price</translation>
    </message>
    <message>
        <source>Print the list…</source>
        <translation>Print the list…</translation>
    </message>
    <message>
        <source>Propulsion</source>
        <translation>Propulsion</translation>
    </message>
    <message>
        <source>Purchase</source>
        <translation>Purchase</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Quantity</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>Rating</translation>
    </message>
    <message>
        <source>Registration</source>
        <translation>Registration</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Remarks</translation>
    </message>
    <message>
        <source>Remove the picture</source>
        <translation>Remove the picture</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Result</translation>
    </message>
    <message>
        <source>Sea bed</source>
        <translation>Sea bed</translation>
    </message>
    <message>
        <source>Shop</source>
        <translation>Shop</translation>
    </message>
    <message>
        <source>Still to be visited</source>
        <translation>Still to be visited</translation>
    </message>
    <message>
        <source>Sunk</source>
        <translation>Sunk</translation>
    </message>
    <message>
        <source>Sunk on</source>
        <translation>Sunk on</translation>
    </message>
    <message>
        <source>Test pressure</source>
        <translation>Test pressure</translation>
    </message>
    <message>
        <source>This file is no picture.</source>
        <translation>This file is no picture.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Today</translation>
    </message>
    <message>
        <source>Tonnage</source>
        <translation>Tonnage</translation>
    </message>
    <message>
        <source>Updated on</source>
        <translation>Updated on</translation>
    </message>
    <message>
        <source>Valve</source>
        <translation>Valve</translation>
    </message>
    <message>
        <source>Visit</source>
        <translation>Visit</translation>
    </message>
    <message>
        <source>Visual inspection</source>
        <translation>Visual inspection</translation>
    </message>
    <message>
        <source>Visually inspected</source>
        <translation>Visually inspected</translation>
    </message>
    <message>
        <source>Working pressure</source>
        <translation>Working pressure</translation>
    </message>
    <message>
        <source>Wreck</source>
        <translation>Wreck</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>The printer does not print.</source>
        <translation>The printer does not print.</translation>
    </message>
    <message>
        <source>Firm</source>
        <translation>Firm</translation>
    </message>
    <message>
        <source>Activity</source>
        <translation>Activity</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Address</translation>
    </message>
    <message>
        <source>Street</source>
        <translation>Street</translation>
    </message>
    <message>
        <source>Postal code</source>
        <translation>Postal code</translation>
    </message>
    <message>
        <source>Town</source>
        <translation>Town</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Contact</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Phone</translation>
    </message>
    <message>
        <source>Fax</source>
        <translation>Fax</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Web site</translation>
    </message>
    <message>
        <source>Rating &amp; remarks</source>
        <translation>Rating &amp; remarks</translation>
    </message>
    <message>
        <source>Opening hours</source>
        <translation>Opening hours</translation>
    </message>
    <message>
        <source>Affiliation</source>
        <translation>Affiliation</translation>
    </message>
    <message>
        <source>Manager</source>
        <translation>Manager</translation>
    </message>
    <message>
        <source>Club</source>
        <translation>Club</translation>
    </message>
    <message>
        <source>Dive centre</source>
        <translation>Dive centre</translation>
    </message>
    <message>
        <source>Diving school</source>
        <translation>Diving school</translation>
    </message>
    <message>
        <source>Dive boat</source>
        <translation>Dive boat</translation>
    </message>
    <message>
        <source>Other kind</source>
        <translation>Other kind</translation>
    </message>
    <message>
        <source>Mobile phone</source>
        <translation>Mobile phone</translation>
    </message>
    <message>
        <source>€</source>
        <translation>€</translation>
    </message>
    <message>
        <source>Introductory dive</source>
        <translation>Introductory dive</translation>
    </message>
    <message>
        <source>Courses</source>
        <translation>Courses</translation>
    </message>
    <message>
        <source>Prices</source>
        <translation>Prices</translation>
    </message>
    <message>
        <source>Dives made here</source>
        <translation>Dives made here</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Paper</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>Issued by</source>
        <translation>Issued by</translation>
    </message>
    <message>
        <source>Issued on</source>
        <translation>Issued on</translation>
    </message>
    <message>
        <source>Renewal</source>
        <translation>Renewal</translation>
    </message>
    <message>
        <source>Must be renewed</source>
        <translation>Must be renewed</translation>
    </message>
    <message>
        <source>Renewal on</source>
        <translation>Renewal on</translation>
    </message>
    <message>
        <source>Scanned copy</source>
        <translation>Scanned copy</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>Part</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Reference</translation>
    </message>
    <message>
        <source>Used for</source>
        <translation>Used for</translation>
    </message>
    <message>
        <source>Stock</source>
        <translation>Stock</translation>
    </message>
    <message>
        <source>In stock</source>
        <translation>In stock</translation>
    </message>
    <message>
        <source>Reserve</source>
        <translation>Reserve</translation>
    </message>
    <message>
        <source>Full stock</source>
        <translation>Full stock</translation>
    </message>
    <message>
        <source>Kept at</source>
        <translation>Kept at</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Inventory</translation>
    </message>
    <message>
        <source>Not counted in inventories</source>
        <translation>Not counted in inventories</translation>
    </message>
    <message>
        <source>Counted on</source>
        <translation>Counted on</translation>
    </message>
    <message>
        <source>Inventory &amp; remarks</source>
        <translation>Inventory &amp; remarks</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Level</translation>
    </message>
    <message>
        <source>Spare part</source>
        <translation>Spare part</translation>
    </message>
    <message>
        <source>Time run</source>
        <translation>Time run</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Hours</translation>
    </message>
    <message>
        <source>Oil</source>
        <translation>Oil</translation>
    </message>
    <message>
        <source>Air filter</source>
        <translation>Air filter</translation>
    </message>
    <message>
        <source>Cartridge</source>
        <translation>Cartridge</translation>
    </message>
    <message>
        <source>Charcoal</source>
        <translation>Charcoal</translation>
    </message>
    <message>
        <source>Alumina</source>
        <translation>Alumina</translation>
    </message>
    <message>
        <source>Sieve</source>
        <translation>Sieve</translation>
    </message>
    <message>
        <source>Dusting</source>
        <translation>Dusting</translation>
    </message>
    <message>
        <source>Checks</source>
        <translation>Checks</translation>
    </message>
    <message>
        <source>Valves</source>
        <translation>Valves</translation>
    </message>
    <message>
        <source>Oil in air</source>
        <translation>Oil in air</translation>
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
        <translation>Mineral oil</translation>
    </message>
    <message>
        <source>Synthetic oil</source>
        <translation>Synthetic oil</translation>
    </message>
    <message>
        <source>Filter cleaned</source>
        <translation>Filter cleaned</translation>
    </message>
    <message>
        <source>Filter replaced</source>
        <translation>Filter replaced</translation>
    </message>
    <message>
        <source>Valves verified</source>
        <translation>Valves verified</translation>
    </message>
    <message>
        <source>Valves recalibrated</source>
        <translation>Valves recalibrated</translation>
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
        <translation>Service</translation>
    </message>
    <message>
        <source>Hours in all</source>
        <translation>Hours in all</translation>
    </message>
    <message>
        <source>Oil and air filter</source>
        <translation>Oil and air filter</translation>
    </message>
    <message>
        <source>Oil changed</source>
        <translation>Oil changed</translation>
    </message>
    <message>
        <source>Air filter serviced</source>
        <translation>Air filter serviced</translation>
    </message>
    <message>
        <source>Purification</source>
        <translation>Purification</translation>
    </message>
    <message>
        <source>Whole cartridge replaced</source>
        <translation>Whole cartridge replaced</translation>
    </message>
    <message>
        <source>Activated charcoal renewed</source>
        <translation>Activated charcoal renewed</translation>
    </message>
    <message>
        <source>Activated alumina renewed</source>
        <translation>Activated alumina renewed</translation>
    </message>
    <message>
        <source>Molecular sieve renewed</source>
        <translation>Molecular sieve renewed</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>Machine</translation>
    </message>
    <message>
        <source>Cleaned of dust</source>
        <translation>Cleaned of dust</translation>
    </message>
    <message>
        <source>Checks made</source>
        <translation>Checks made</translation>
    </message>
    <message>
        <source>Safety valves serviced</source>
        <translation>Safety valves serviced</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Operations</translation>
    </message>
    <message>
        <source>Air analysis (-1: not measured)</source>
        <translation>Air analysis (-1: not measured)</translation>
    </message>
    <message>
        <source>mg/m³</source>
        <translation>mg/m³</translation>
    </message>
    <message>
        <source>Analyses &amp; remarks</source>
        <translation>Analyses &amp; remarks</translation>
    </message>
    <message>
        <source>Compressor service</source>
        <translation>Compressor service</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Monday</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Tuesday</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Wednesday</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Thursday</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Friday</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Saturday</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Sunday</translation>
    </message>
    <message>
        <source>to</source>
        <translation>to</translation>
    </message>
    <message>
        <source>and from</source>
        <translation>and from</translation>
    </message>
    <message>
        <source>Unit price</source>
        <translation>Unit price</translation>
    </message>
    <message>
        <source>Value for money</source>
        <translation>Value for money</translation>
    </message>
    <message>
        <source>Efficiency</source>
        <translation>Efficiency</translation>
    </message>
    <message>
        <source>Expense planned</source>
        <translation>Expense planned</translation>
    </message>
    <message>
        <source>at</source>
        <translation>at</translation>
    </message>
    <message>
        <source>Base price</source>
        <translation>Base price</translation>
    </message>
    <message>
        <source>Supplement 1</source>
        <translation>Supplement 1</translation>
    </message>
    <message>
        <source>Supplement 2</source>
        <translation>Supplement 2</translation>
    </message>
    <message>
        <source>Supplement 3</source>
        <translation>Supplement 3</translation>
    </message>
    <message>
        <source>Supplement 4</source>
        <translation>Supplement 4</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Not in the total</source>
        <translation>Not in the total</translation>
    </message>
    <message>
        <source>Further price</source>
        <translation>Further price</translation>
    </message>
    <message>
        <source>units for</source>
        <translation>units for</translation>
    </message>
    <message>
        <source>Prepaid cards</source>
        <translation>Prepaid cards</translation>
    </message>
    <message>
        <source>There are prepaid cards</source>
        <translation>There are prepaid cards</translation>
    </message>
    <message>
        <source>Card 1</source>
        <translation>Card 1</translation>
    </message>
    <message>
        <source>Card 2</source>
        <translation>Card 2</translation>
    </message>
    <message>
        <source>Card 3</source>
        <translation>Card 3</translation>
    </message>
    <message>
        <source>Card 4</source>
        <translation>Card 4</translation>
    </message>
    <message>
        <source>Service and prices</source>
        <translation>Service and prices</translation>
    </message>
    <message>
        <source>Loop time</source>
        <translation>Loop time</translation>
    </message>
    <message>
        <source>Absorbent time</source>
        <translation>Absorbent time</translation>
    </message>
    <message>
        <source>Absorbent</source>
        <translation>Absorbent</translation>
    </message>
    <message>
        <source>Disinfection</source>
        <translation>Disinfection</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Battery</translation>
    </message>
    <message>
        <source>Cells</source>
        <translation>Cells</translation>
    </message>
    <message>
        <source>O2 pressure</source>
        <translation>O2 pressure</translation>
    </message>
    <message>
        <source>Injector</source>
        <translation>Injector</translation>
    </message>
    <message>
        <source>O-rings</source>
        <translation>O-rings</translation>
    </message>
    <message>
        <source>Head</source>
        <translation>Head</translation>
    </message>
    <message>
        <source>Scrubber</source>
        <translation>Scrubber</translation>
    </message>
    <message>
        <source>Intervention</source>
        <translation>Intervention</translation>
    </message>
    <message>
        <source>Work done</source>
        <translation>Work done</translation>
    </message>
    <message>
        <source>CO2 absorbent changed</source>
        <translation>CO2 absorbent changed</translation>
    </message>
    <message>
        <source>Loop disinfected</source>
        <translation>Loop disinfected</translation>
    </message>
    <message>
        <source>Battery changed</source>
        <translation>Battery changed</translation>
    </message>
    <message>
        <source>Injector serviced</source>
        <translation>Injector serviced</translation>
    </message>
    <message>
        <source>Valves serviced</source>
        <translation>Valves serviced</translation>
    </message>
    <message>
        <source>O-rings changed</source>
        <translation>O-rings changed</translation>
    </message>
    <message>
        <source>Scrubber serviced</source>
        <translation>Scrubber serviced</translation>
    </message>
    <message>
        <source>Electronic head serviced</source>
        <translation>Electronic head serviced</translation>
    </message>
    <message>
        <source>O2 intermediate pressure</source>
        <translation>O2 intermediate pressure</translation>
    </message>
    <message>
        <source>Cells replaced</source>
        <translation>Cells replaced</translation>
    </message>
    <message>
        <source>How many</source>
        <translation>How many</translation>
    </message>
    <message>
        <source>Cell 1</source>
        <translation>Cell 1</translation>
    </message>
    <message>
        <source>Cell 2</source>
        <translation>Cell 2</translation>
    </message>
    <message>
        <source>Cell 3</source>
        <translation>Cell 3</translation>
    </message>
    <message>
        <source>Cell 4</source>
        <translation>Cell 4</translation>
    </message>
    <message>
        <source>Cell 5</source>
        <translation>Cell 5</translation>
    </message>
    <message>
        <source>Rebreather intervention</source>
        <translation>Rebreather intervention</translation>
    </message>
    <message>
        <source>Service done</source>
        <translation>Service done</translation>
    </message>
    <message>
        <source>Equipment state</source>
        <translation>State</translation>
    </message>
    <message>
        <source>Hull material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>Ship</source>
        <translation>Ship</translation>
    </message>
    <message>
        <source>Loop valves</source>
        <translation>Loop valves</translation>
    </message>
    <message>
        <source>Choose a page</source>
        <translation>Choose a page</translation>
    </message>
    <message>
        <source>&amp;Page</source>
        <translation>&amp;Page</translation>
    </message>
    <message>
        <source>Cells fitted</source>
        <translation>Cells fitted</translation>
    </message>
    <message>
        <source>Cell type</source>
        <translation>Cell type</translation>
    </message>
    <message>
        <source>Fitted on</source>
        <translation>Fitted on</translation>
    </message>
    <message>
        <source>End of life</source>
        <translation>End of life</translation>
    </message>
    <message>
        <source>Life used</source>
        <translation>Life used</translation>
    </message>
    <message>
        <source>Offer 1</source>
        <translation>Offer 1</translation>
    </message>
    <message>
        <source>Offer 2</source>
        <translation>Offer 2</translation>
    </message>
    <message>
        <source>Offer 3</source>
        <translation>Offer 3</translation>
    </message>
    <message>
        <source>Offer 4</source>
        <translation>Offer 4</translation>
    </message>
    <message>
        <source>Offer 5</source>
        <translation>Offer 5</translation>
    </message>
    <message>
        <source>Course 1</source>
        <translation>Course 1</translation>
    </message>
    <message>
        <source>Course 2</source>
        <translation>Course 2</translation>
    </message>
    <message>
        <source>Course 3</source>
        <translation>Course 3</translation>
    </message>
    <message>
        <source>Course 4</source>
        <translation>Course 4</translation>
    </message>
    <message>
        <source>Course 5</source>
        <translation>Course 5</translation>
    </message>
    <message>
        <source>Course 6</source>
        <translation>Course 6</translation>
    </message>
</context>
<context>
    <name>Entreprises</name>
    <message>
        <source>Monday</source>
        <translation>Monday</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Tuesday</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Wednesday</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Thursday</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Friday</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Saturday</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Sunday</translation>
    </message>
    <message>
        <source>Schedules</source>
        <translation>Opening hours</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Firm</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Address</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Phone</translation>
    </message>
    <message>
        <source>Fax</source>
        <translation>Fax</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>URL</source>
        <translation>Web site</translation>
    </message>
    <message>
        <source>Activity</source>
        <translation>Activity</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Remarks</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Updated on</translation>
    </message>
</context>
<context>
    <name>Budget</name>
    <message>
        <source>N/A</source>
        <translation>N/A</translation>
    </message>
    <message>
        <source>Very bad</source>
        <translation>Very bad</translation>
    </message>
    <message>
        <source>Bad</source>
        <translation>Bad</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Good</translation>
    </message>
    <message>
        <source>Very good</source>
        <translation>Very good</translation>
    </message>
    <message>
        <source>Very inefficient</source>
        <translation>Very inefficient</translation>
    </message>
    <message>
        <source>Inefficient</source>
        <translation>Inefficient</translation>
    </message>
    <message>
        <source>Satisfying</source>
        <translation>Satisfying</translation>
    </message>
    <message>
        <source>Very satisfying</source>
        <translation>Very satisfying</translation>
    </message>
    <message>
        <source>Discount price</source>
        <translation>%.2f € a unit</translation>
    </message>
    <message>
        <source>Supplement</source>
        <translation>Supplement</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Quantity</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Card</translation>
    </message>
    <message>
        <source>Units at</source>
        <translation>Units at</translation>
    </message>
    <message>
        <source>Money</source>
        <translation>€</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Budget forecast</translation>
    </message>
    <message>
        <source>Prestation</source>
        <translation>Service</translation>
    </message>
    <message>
        <source>Price per unit</source>
        <translation>Price per unit</translation>
    </message>
    <message>
        <source>Entreprise</source>
        <translation>Firm</translation>
    </message>
    <message>
        <source>Cotation</source>
        <translation>Value for money</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Efficiency</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Remarks</translation>
    </message>
</context>
<context>
    <name>Structures</name>
    <message>
        <source>Prices</source>
        <translation>Prices</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Monday</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Tuesday</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Wednesday</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Thursday</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Friday</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Saturday</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Sunday</translation>
    </message>
    <message>
        <source>Schedules</source>
        <translation>Opening hours</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Club or centre</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Kind</translation>
    </message>
    <message>
        <source>Affiliation</source>
        <translation>Affiliation</translation>
    </message>
    <message>
        <source>Gerant</source>
        <translation>Manager</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Address</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Phone</translation>
    </message>
    <message>
        <source>Mobile</source>
        <translation>Mobile phone</translation>
    </message>
    <message>
        <source>Fax</source>
        <translation>Fax</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>URL</source>
        <translation>Web site</translation>
    </message>
    <message>
        <source>Cotation</source>
        <translation>Rating</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Updated on</translation>
    </message>
    <message>
        <source>NBDives</source>
        <translation>Dives made here</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Remarks</translation>
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
        <translation>Certification</translation>
    </message>
    <message>
        <source>TableView certifMed</source>
        <translation>Medical certificate</translation>
    </message>
    <message>
        <source>TableView facture</source>
        <translation>Invoice</translation>
    </message>
    <message>
        <source>TableView licence</source>
        <translation>Diving licence</translation>
    </message>
    <message>
        <source>TableView autre</source>
        <translation>Other</translation>
    </message>
</context>
<context>
    <name>Consommables</name>
    <message>
        <source>Inventory</source>
        <translation>Spare part</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Reference</translation>
    </message>
    <message>
        <source>Trade mark</source>
        <translation>Make</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Used for</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>In stock</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Kept at</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Remarks</translation>
    </message>
</context>
<context>
    <name>Compresseur</name>
    <message>
        <source>TableView replacement</source>
        <translation>Replacement</translation>
    </message>
    <message>
        <source>TableView cleaning</source>
        <translation>Cleaning</translation>
    </message>
    <message>
        <source>TableView retarage</source>
        <translation>Recalibration</translation>
    </message>
    <message>
        <source>TableView verification</source>
        <translation>Verification</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Operations</translation>
    </message>
    <message>
        <source>Vidange synthesis</source>
        <translation>Oil change, synthetic oil</translation>
    </message>
    <message>
        <source>Vidange mineral</source>
        <translation>Oil change, mineral oil</translation>
    </message>
    <message>
        <source>Filter replacement</source>
        <translation>Air filter replaced</translation>
    </message>
    <message>
        <source>Filter cleaning</source>
        <translation>Air filter cleaned</translation>
    </message>
    <message>
        <source>Cardridge</source>
        <translation>Purification cartridge replaced</translation>
    </message>
    <message>
        <source>Charcoal</source>
        <translation>Activated charcoal renewed</translation>
    </message>
    <message>
        <source>Alumin</source>
        <translation>Activated alumina renewed</translation>
    </message>
    <message>
        <source>Molecular mesh</source>
        <translation>Molecular sieve renewed</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>Cleaned of dust</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Checks made</translation>
    </message>
    <message>
        <source>Valves</source>
        <translation>Safety valves</translation>
    </message>
    <message>
        <source>Retarage</source>
        <translation>Recalibration</translation>
    </message>
    <message>
        <source>Verification</source>
        <translation>Verification</translation>
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
        <translation>Air analyses</translation>
    </message>
    <message>
        <source>Analyse huile</source>
        <translation>Oil</translation>
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
        <translation>Water</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Compressor maintenance</translation>
    </message>
    <message>
        <source>Trade mark</source>
        <translation>Make</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Service No</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time run</translation>
    </message>
    <message>
        <source>Sum time</source>
        <translation>Hours in all</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Remarks</translation>
    </message>
</context>
<context>
    <name>Rebreather</name>
    <message>
        <source>Cell 1</source>
        <translation>Cell 1</translation>
    </message>
    <message>
        <source>Cell 2</source>
        <translation>Cell 2</translation>
    </message>
    <message>
        <source>Cell 3</source>
        <translation>Cell 3</translation>
    </message>
    <message>
        <source>Cell 4</source>
        <translation>Cell 4</translation>
    </message>
    <message>
        <source>Cell 5</source>
        <translation>Cell 5</translation>
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
        <translation>Oxygen cells</translation>
    </message>
    <message>
        <source>Sofnolime</source>
        <translation>CO2 absorbent changed</translation>
    </message>
    <message>
        <source>Disinfection</source>
        <translation>Loop disinfected</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Battery changed</translation>
    </message>
    <message>
        <source>Cells replacement</source>
        <translation>Cells replaced</translation>
    </message>
    <message>
        <source>MpO2</source>
        <translation>O2 intermediate pressure</translation>
    </message>
    <message>
        <source>Injector</source>
        <translation>Injector serviced</translation>
    </message>
    <message>
        <source>Valve</source>
        <translation>Valves serviced</translation>
    </message>
    <message>
        <source>ORing</source>
        <translation>O-rings changed</translation>
    </message>
    <message>
        <source>Electronic head</source>
        <translation>Electronic head serviced</translation>
    </message>
    <message>
        <source>Scrubber</source>
        <translation>Scrubber serviced</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Rebreather service</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Rebreather history</source>
        <translation>History</translation>
    </message>
    <message>
        <source>Rebreather time</source>
        <translation>Loop time</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Remarks</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>No earlier intervention</source>
        <translation>there is no earlier intervention to carry cells over from, so none was added</translation>
    </message>
</context>
</TS>
