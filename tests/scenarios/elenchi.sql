select descrizione, m1 like '%inizioLavori="30/06/2025"%' from tblWorkspace where idrif1 = '2025-0007' and t1 = 'TRT';
= Estrazioni in corso|1
select count(*) from tblWorkspace where idrif1 = '2025-0005' and t1 = 'TRT';
= 0
