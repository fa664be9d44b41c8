select count(*) from tblWorkspace where idrif1 = '2026-0001' and t1 = 'TRT' and m1 like '%denti="+2;13" servizio="CORONA"%';
= 1
select count(*) from tblWorkspace where m1 like '%<rigo progressivo="02" denti="" servizio="CURETT"%<situazioneOrale>MToyOjsyOjQ6YSAyMCBhbm5pOzQ6Mzo=</situazioneOrale>%';
= 1
