select m1 like '%servizio="DEVITAL"%', m1 like '%servizio="visita" descrizione="VmlzaXRhIG9kb250b2lhdHJpY2E="%' from tblWorkspace where idrif1 = '2026-0001' and t1 = 'TRT';
= 1|1
