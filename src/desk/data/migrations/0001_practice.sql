-- The practice's first form. Written for both database systems: names are never quoted, "{schema}." stands before each table
-- but the one in a reference, which both look for beside the table itself.

create table {schema}.tblVersione (
    versione integer not null primary key,
    applicata timestamp not null
);

create table {schema}.tblUtenti (
    ID varchar(38) not null primary key,
    codice text not null unique,
    Cognome text not null,
    Nome text not null,
    codicefiscale text,
    tipo integer not null,
    codiceattivita text,
    ModificatoDa text,
    DataModifica timestamp,
    LastUpdate timestamp
);

create table {schema}.tblPazienti (
    ID varchar(38) not null primary key,
    Cognome text not null,
    Nome text not null,
    codicefiscale text,
    datanascita date,
    luogonascita text,
    sesso text,
    indirizzo text,
    cap text,
    citta text,
    provincia text,
    telefono text,
    email text,
    idmedico varchar(38) references tblUtenti (ID),
    note text,
    ricerca text,
    ModificatoDa text,
    DataModifica timestamp,
    LastUpdate timestamp
);
create index ixPazientiNome on {schema}.tblPazienti (Cognome, Nome);
create index ixPazientiCodice on {schema}.tblPazienti (codicefiscale);

-- Rows of several modules, some of no patient at all: idpaziente refers to a patient, and nothing enforces it.
create table {schema}.tblWorkspace (
    ID varchar(38) not null primary key,
    tiporecord integer not null,
    t1 text,
    idrif1 text,
    idpaziente varchar(38),
    Data timestamp,
    descrizione text,
    m1 text,
    ModificatoDa text,
    DataModifica timestamp,
    LastUpdate timestamp
);
create index ixWorkspaceNumero on {schema}.tblWorkspace (tiporecord, t1, idrif1);
create index ixWorkspaceData on {schema}.tblWorkspace (tiporecord, t1, Data);
create index ixWorkspacePaziente on {schema}.tblWorkspace (idpaziente);

create table {schema}.tblFiles (
    ID varchar(38) not null primary key,
    idpaziente varchar(38) not null references tblPazienti (ID),
    Descrizione text,
    Data timestamp,
    file text,
    contenuto {blob},
    ModificatoDa text,
    DataModifica timestamp,
    LastUpdate timestamp
);
create index ixFilesPaziente on {schema}.tblFiles (idpaziente);

create table {schema}.tblEventi (
    ID varchar(38) not null primary key,
    idpaziente varchar(38) not null references tblPazienti (ID),
    Data timestamp,
    descrizione text,
    idfiles varchar(38),
    ModificatoDa text,
    DataModifica timestamp,
    LastUpdate timestamp
);
create index ixEventiPaziente on {schema}.tblEventi (idpaziente);

create table {schema}.tblAppunti (
    ID varchar(38) not null primary key,
    idpaziente varchar(38) not null references tblPazienti (ID),
    Data timestamp,
    b1 smallint not null,
    b2 smallint not null,
    m1 text,
    ModificatoDa text,
    DataModifica timestamp,
    LastUpdate timestamp
);
create index ixAppuntiPaziente on {schema}.tblAppunti (idpaziente);

create table {schema}.tblVisite (
    ID varchar(38) not null primary key,
    idpaziente varchar(38) not null references tblPazienti (ID),
    Data timestamp,
    descrizione text,
    ModificatoDa text,
    DataModifica timestamp,
    LastUpdate timestamp
);
create index ixVisitePaziente on {schema}.tblVisite (idpaziente);

create table {schema}.tblScadenze (
    ID varchar(38) not null primary key,
    idpaziente varchar(38) not null references tblPazienti (ID),
    Data timestamp,
    descrizione text,
    chiusa smallint not null,
    ModificatoDa text,
    DataModifica timestamp,
    LastUpdate timestamp
);
create index ixScadenzePaziente on {schema}.tblScadenze (idpaziente);
create index ixScadenzeData on {schema}.tblScadenze (Data);

create table {schema}.tblDati (
    ID varchar(38) not null primary key,
    Cartella text not null,
    descrizione text,
    file text,
    ModificatoDa text,
    DataModifica timestamp,
    LastUpdate timestamp
);
create index ixDatiCartella on {schema}.tblDati (Cartella);

create table {schema}.tblImpostazioni (
    idutente varchar(38) not null references tblUtenti (ID),
    nome text not null,
    valore text,
    LastUpdate timestamp,
    primary key (idutente, nome)
);
