select count(*) from tblWorkspace where idrif1 = '2026-0001' and t1 = 'TRT' and m1 like '%denti="+7;6" servizio="CORONA"%';
= 1
select count(*) from tblWorkspace where m1 like '%<situazioneOrale>MDoxOjszOjc6ZG9sZW50ZTogZnJlZGRvLCBjYWxkbzsxMjozOjsyMDo5OjszMDo0Og==</situazioneOrale>%';
= 1
select count(*) from tblWorkspace where m1 like '%statusLavori="UHJlcGFyYXppb25lDQpJbXByb250YXwyMDI2MDIyOA0KUHJvdmENCkNlbWVudGF6aW9uZQ=="%';
= 1
