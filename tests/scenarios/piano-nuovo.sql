select count(*) from tblWorkspace w join tblPazienti p on p.ID = w.idpaziente where p.codicefiscale = 'RSSMRA80A01H501U';
= 1
select w.t1, w.idrif1, w.descrizione, substr(w.Data, 1, 10) from tblWorkspace w join tblPazienti p on p.ID = w.idpaziente where p.codicefiscale = 'RSSMRA80A01H501U';
= TRT|2026-0001|Riabilitazione superiore|2026-03-02
select count(*) from tblWorkspace where idrif1 = '2026-0001' and m1 like '%OTTURAZ%' and m1 like '%CORONA%';
= 1
