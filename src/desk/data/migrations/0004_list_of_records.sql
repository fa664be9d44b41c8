-- The records of a patient come out of the index in the order of their list: sorting them would move every memo. A server
-- sorts references only, and would refuse very long numbers in an index.
{sqlite} drop index {schema}.ixWorkspacePaziente;
{sqlite} create index ixWorkspaceElenco on {schema}.tblWorkspace (idpaziente, Data, idrif1, ID);
