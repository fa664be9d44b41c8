-- Who may sign in and with what; wrong passwords in a row and the last of them. A user with records stays, not active.
alter table {schema}.tblUtenti add column improntapassword text;
alter table {schema}.tblUtenti add column tentativi integer not null default 0;
alter table {schema}.tblUtenti add column ultimotentativo timestamp;
alter table {schema}.tblUtenti add column attivo smallint not null default 1;

alter table {schema}.tblPazienti add column cellulare text;
alter table {schema}.tblPazienti add column domicilio text;
alter table {schema}.tblPazienti add column capdomicilio text;
alter table {schema}.tblPazienti add column cittadomicilio text;
alter table {schema}.tblPazienti add column provinciadomicilio text;

-- The search walks through one narrow index that holds all it compares, in the order of the results. A server reads its
-- rows fast enough, and would refuse very long names in an index.
drop index {schema}.ixPazientiNome;
{sqlite} create index ixPazientiRicerca on {schema}.tblPazienti (ricerca, ID, codicefiscale);
