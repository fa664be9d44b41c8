-- A long file, such as a volume scan, in parts that pass through memory one by one. The first part stands in tblFiles, where
-- short files are whole; these are the ones after it, from number 1.
create table {schema}.tblFileParti (
    idfile varchar(38) not null references tblFiles (ID) on delete cascade,
    numero integer not null,
    contenuto {blob} not null,
    primary key (idfile, numero)
);
