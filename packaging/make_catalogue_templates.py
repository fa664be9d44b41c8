#!/usr/bin/env python3
"""Writes the templates of the catalogues, data/DB/TabellaServizi.xml and data/DB/TabellaArticoli.xml.

Descriptions stand in the files as Base64 of their Windows-1252 bytes, which nobody can edit by hand: the readable list is
here. Run it from the root of the sources.
"""
import base64
import pathlib
from xml.sax.saxutils import quoteattr

DB = pathlib.Path("data/DB")
EXEMPT, ORDINARY, REDUCED = "ES", "22", "10"

PROSTHESIS = ("Preparazione", "Impronta", "Prova", "Cementazione")
REMOVABLE = ("Impronta", "Registrazione occlusale", "Prova denti", "Consegna")
IMPLANT = ("Inserimento", "Osteointegrazione", "Scopertura", "Impronta")

# Code, description, short text, unit, price, VAT, group, usable in a plan, in evidence, intermediate states.
SERVICES = [
    ("VISITA", "Visita odontoiatrica", "Visita", "NR", "60,00", EXEMPT, "01", 1, 0, ()),
    ("VISCONTR", "Visita di controllo", "Controllo", "NR", "35,00", EXEMPT, "01", 1, 0, ()),
    ("URGENZA", "Prestazione d'urgenza", "Urgenza", "NR", "80,00", EXEMPT, "01", 1, 0, ()),
    ("RXENDO", "Radiografia endorale", "RX endorale", "NR", "20,00", EXEMPT, "01", 1, 0, ()),
    ("OPT", "Ortopantomografia delle arcate dentarie", "Panoramica", "NR", "50,00", EXEMPT, "01", 1, 0, ()),
    ("CBCT", "Tomografia volumetrica di un'arcata", "TAC", "NR", "120,00", EXEMPT, "01", 1, 0, ()),
    ("MODELLI", "Modelli di studio", "Modelli", "NR", "60,00", EXEMPT, "01", 1, 0, ()),
    ("IGIENE", "Ablazione del tartaro e igiene orale", "Igiene", "NR", "80,00", EXEMPT, "02", 1, 0, ()),
    ("FLUORO", "Applicazione topica di fluoro", "Fluoro", "NR", "40,00", EXEMPT, "02", 1, 0, ()),
    ("SIGILL", "Sigillatura dei solchi", "Sigillatura", "NR", "40,00", EXEMPT, "02", 1, 0, ()),
    ("SBIANC", "Sbiancamento professionale", "Sbiancamento", "NR", "300,00", ORDINARY, "02", 1, 0, ("Mascherine", "Prima seduta", "Controllo")),
    ("OTTURAZ", "Otturazione in composito, una superficie", "Otturazione", "NR", "100,00", EXEMPT, "03", 1, 0, ()),
    ("OTTURAZ2", "Otturazione in composito, due o più superfici", "Otturazione 2", "NR", "140,00", EXEMPT, "03", 1, 0, ()),
    ("RICOSTR", "Ricostruzione coronale", "Ricostruzione", "NR", "180,00", EXEMPT, "03", 1, 0, ()),
    ("INTARSIO", "Intarsio in ceramica", "Intarsio", "NR", "420,00", EXEMPT, "03", 1, 0, ("Preparazione", "Impronta", "Cementazione")),
    ("FACCETTA", "Faccetta in ceramica", "Faccetta", "NR", "650,00", EXEMPT, "03", 1, 0, PROSTHESIS),
    ("DEVITAL", "Terapia endodontica (devitalizzazione)", "Devitalizzazione", "NR", "250,00", EXEMPT, "04", 1, 0, ("Apertura", "Strumentazione", "Chiusura canalare")),
    ("RITRATT", "Ritrattamento endodontico", "Ritrattamento", "NR", "350,00", EXEMPT, "04", 1, 0, ("Disotturazione", "Strumentazione", "Chiusura canalare")),
    ("PERNO", "Perno moncone in fibra", "Perno", "NR", "150,00", EXEMPT, "04", 1, 0, ()),
    ("INCAPP", "Incappucciamento della polpa", "Incappucciamento", "NR", "70,00", EXEMPT, "04", 1, 0, ()),
    ("ESTRAZ", "Estrazione semplice", "Estrazione", "NR", "90,00", EXEMPT, "05", 1, 0, ()),
    ("ESTRCHIR", "Estrazione chirurgica di dente incluso", "Estrazione chir.", "NR", "280,00", EXEMPT, "05", 1, 1, ("Intervento", "Rimozione punti")),
    ("APICO", "Apicectomia", "Apicectomia", "NR", "350,00", EXEMPT, "05", 1, 0, ("Intervento", "Rimozione punti")),
    ("FRENUL", "Frenulectomia", "Frenulectomia", "NR", "200,00", EXEMPT, "05", 1, 0, ()),
    ("BIOPSIA", "Biopsia dei tessuti molli", "Biopsia", "NR", "180,00", EXEMPT, "05", 1, 1, ("Prelievo", "Referto")),
    ("IMPIANTO", "Impianto osteointegrato", "Impianto", "NR", "1100,00", EXEMPT, "06", 1, 1, IMPLANT),
    ("CORIMP", "Corona su impianto", "Corona impianto", "NR", "900,00", EXEMPT, "06", 1, 1, ("Impronta", "Prova", "Consegna")),
    ("RIALZO", "Rialzo del seno mascellare", "Rialzo seno", "NR", "1300,00", EXEMPT, "06", 1, 1, ("Intervento", "Rimozione punti")),
    ("GBR", "Rigenerazione ossea guidata", "Rigenerazione", "NR", "800,00", EXEMPT, "06", 1, 1, ("Intervento", "Rimozione membrana")),
    ("CORONA", "Corona in zirconia-ceramica", "Corona", "NR", "700,00", EXEMPT, "07", 1, 1, PROSTHESIS),
    ("CORMC", "Corona in metallo-ceramica", "Corona MC", "NR", "600,00", EXEMPT, "07", 1, 1, PROSTHESIS),
    ("CORPROV", "Corona provvisoria in resina", "Provvisorio", "NR", "110,00", EXEMPT, "07", 1, 0, ()),
    ("PONTE", "Elemento intermedio di ponte", "Ponte", "NR", "600,00", EXEMPT, "07", 1, 1, PROSTHESIS),
    ("RICEMENT", "Ricementazione di corona o ponte", "Ricementazione", "NR", "50,00", EXEMPT, "07", 1, 0, ()),
    ("PROTMOB", "Protesi totale mobile, per arcata", "Protesi totale", "NR", "1200,00", EXEMPT, "08", 1, 1, REMOVABLE),
    ("PROTPARZ", "Protesi parziale in resina", "Protesi parziale", "NR", "700,00", EXEMPT, "08", 1, 1, REMOVABLE),
    ("SCHELETR", "Protesi scheletrata", "Scheletrato", "NR", "1400,00", EXEMPT, "08", 1, 1, REMOVABLE),
    ("RIBASAT", "Ribasatura di protesi", "Ribasatura", "NR", "200,00", EXEMPT, "08", 1, 0, ()),
    ("RIPARAZ", "Riparazione di protesi", "Riparazione", "NR", "120,00", EXEMPT, "08", 1, 0, ()),
    ("BITE", "Bite notturno", "Bite", "NR", "350,00", EXEMPT, "08", 1, 0, ("Impronta", "Consegna", "Controllo")),
    ("ORTODON", "Apparecchio ortodontico fisso, per arcata", "Ortodonzia", "NR", "1800,00", EXEMPT, "09", 1, 1, ("Studio del caso", "Bandaggio", "Controlli", "Contenzione")),
    ("ALLINEAT", "Allineatori trasparenti, trattamento completo", "Allineatori", "NR", "3200,00", EXEMPT, "09", 1, 1, ("Scansione", "Piano", "Consegna", "Contenzione")),
    ("SPAZIO", "Mantenitore di spazio", "Mantenitore", "NR", "250,00", EXEMPT, "09", 1, 0, ("Impronta", "Consegna")),
    ("SONDPARO", "Sondaggio parodontale completo", "Sondaggio", "NR", "80,00", EXEMPT, "10", 1, 0, ()),
    ("CURETT", "Levigatura radicolare, per quadrante", "Levigatura", "NR", "150,00", EXEMPT, "10", 1, 0, ()),
    ("CHIRPARO", "Chirurgia parodontale, per sestante", "Chirurgia paro", "NR", "450,00", EXEMPT, "10", 1, 1, ("Intervento", "Rimozione punti", "Rivalutazione")),
    ("CLOREXID", "Collutorio alla clorexidina 0,20%, 200 ml", "Collutorio", "FL", "9,50", ORDINARY, "20", 0, 0, ()),
    ("SCOVOLIN", "Scovolini interdentali, confezione da 8", "Scovolini", "CF", "6,80", ORDINARY, "20", 0, 0, ()),
]

# Code, description, unit, quantity, price, VAT.
ARTICLES = [
    ("GUANTI-M", "Guanti in nitrile, misura M, confezione da 100", "CF", "12,0", "8,90", ORDINARY),
    ("MASCHER", "Mascherine chirurgiche, confezione da 50", "CF", "20,0", "4,50", ORDINARY),
    ("ANEST", "Articaina con adrenalina 1:100.000, tubofiale da 1,8 ml", "CF", "6,0", "42,00", REDUCED),
    ("COMPOS-A2", "Composito fotopolimerizzabile A2, siringa da 4 g", "NR", "8,0", "38,50", ORDINARY),
    ("ALGINATO", "Alginato, busta da 500 g", "NR", "5,0", "11,20", ORDINARY),
    ("FRESE-D", "Frese diamantate assortite", "CF", "4,0", "29,00", ORDINARY),
]


def encoded(text):
    return base64.b64encode(text.encode("cp1252")).decode("ascii")


def entry(element, attributes):
    return "\t<{} {}/>".format(element, " ".join(f"{name}={quoteattr(str(value))}" for name, value in attributes))


def service(code, description, short, unit, price, vat, group, in_plan, evident, states):
    return entry("servizio", (
        ("ID", code), ("descrizione", encoded(description)), ("breve", short), ("UM", unit), ("prezzo", price),
        ("codiceIva", vat), ("raggruppamento", group), ("usabileInPianoTrattamento", in_plan), ("inEvidenza", evident),
        ("statusLavori", encoded("\r\n".join(states)))))


def article(code, description, unit, quantity, price, vat):
    return entry("articolo", (("ID", code), ("descrizione", encoded(description)), ("UM", unit), ("QTA", quantity),
                              ("prezzo", price), ("codiceIva", vat)))


def write(name, root, entries):
    lines = ['<?xml version="1.0" encoding="utf-8"?>', f"<{root}>", *entries, f"</{root}>"]
    (DB / name).write_bytes("\r\n".join(lines).encode("utf-8"))


if __name__ == "__main__":
    DB.mkdir(parents=True, exist_ok=True)
    write("TabellaServizi.xml", "servizi", [service(*each) for each in SERVICES])
    write("TabellaArticoli.xml", "articoli", [article(*each) for each in ARTICLES])
