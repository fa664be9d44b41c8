-- When the last wrong password came, in seconds of a clock that nobody can turn, and which clock that was. The time of day, by which
-- it was kept before, says nothing to it; who was made to wait begins anew.
alter table {schema}.tblUtenti add column istante bigint;
alter table {schema}.tblUtenti add column orologio text;
update {schema}.tblUtenti set tentativi = 0, ultimotentativo = null;
