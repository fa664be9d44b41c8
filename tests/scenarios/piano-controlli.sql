select w.idrif1, coalesce(w.descrizione, ''), w.m1 like '%CORONA%' from tblWorkspace w join tblPazienti p on p.ID = w.idpaziente where p.codicefiscale = 'RSSMRA80A01H501U';
= 2026-0012||0
