select substr(e.Data, 1, 10), e.descrizione from tblEventi e join tblPazienti p on p.ID = e.idpaziente where p.codicefiscale = 'FNTGPP51M01L781C' and e.Data > '2023-04-10' order by e.Data desc limit 1;
= 2026-02-27|Dolore al 4.6 dall'altro ieri
select count(*), min(substr(e.Data, 1, 10)) from tblEventi e join tblPazienti p on p.ID = e.idpaziente where p.codicefiscale = 'FNTGPP51M01L781C';
= 3|2023-04-08
select group_concat(n.b1 || n.b2 || ' ' || n.m1 || ' (' || n.ModificatoDa || ')', ' + ') from (select * from tblAppunti order by m1) n join tblPazienti p on p.ID = n.idpaziente where p.codicefiscale = 'FNTGPP51M01L781C';
= 01 Allergia alla penicillina riferita dall'anestesista (Ferrari Laura) + 10 Preferisce non parlare davanti al figlio (Ferrari Laura)
select v.Data, v.descrizione from tblVisite v join tblPazienti p on p.ID = v.idpaziente where p.codicefiscale = 'FNTGPP51M01L781C' order by v.Data desc limit 1;
= 2026-03-01 09:30:00|Controllo del 4.6
select substr(s.Data, 1, 10), s.descrizione, s.chiusa from tblScadenze s join tblPazienti p on p.ID = s.idpaziente where p.codicefiscale = 'FNTGPP51M01L781C' order by s.Data desc limit 1;
= 2026-02-28|Richiamo igiene|1
select f.Descrizione, f.file, f.contenuto = readfile('out/radiografia.png'), f.contenuto = readfile('out/copia salvata.png') from tblFiles f join tblPazienti p on p.ID = f.idpaziente where p.codicefiscale = 'FNTGPP51M01L781C';
= Panoramica d'ingresso|radiografia.png|1|1
