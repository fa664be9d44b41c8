select count(*) from tblWorkspace w join tblPazienti p on p.ID = w.idpaziente where p.codicefiscale = 'RSSMRA80A01H501U';
= 0
