-- What must compile: a statement, and the columns of its result with their types ('-' is a column
-- without a name). The screens' own tests run every statement that they send; the ones here pin the
-- types of columns, spellings that are easy to break, and the five lists of the search without a
-- filter, which its test compares with what is sent.

Select (0), Age_ID,Age_Nom FROM Age ORDER BY Age_Nom
=> - int, Age_ID int, Age_Nom varchar(100)
Select Top 1 * from Vespara.dbo.Tivas WHERE Tiva_reg = 1 AND Tiva_Art = 1  AND Tiva_Fecha <= '24/11/2026' ORDER BY Tiva_Fecha Desc
=> Tiva_Id int, Tiva_reg int, Tiva_Art int, Tiva_Fecha date, Tiva_Iva decimal(5,2), Tiva_Ret decimal(5,2)
INSERT INTO Lca (Lca_IdAg,Lca_HFecha,Lca_Cob,Lca_NCob,Lca_Fecha,Lca_IdTiva,Lca_Obs,Lca_Base,Lca_PorIva,Lca_Iva,Lca_PorRetencion,Lca_Retencion,Lca_Total) VALUES (7,Null,1,0,'24/11/2026',3,'Pago O''Donnell; -- único',12.50,21.00,2.63,15.00,1.88,13.25)
Update Cav set Cav_IdLca = 5where cav_id = 4711
select age_id,age_nom,age_nif,lca.* from lca inner join age on lca_idag=age_id  Where lca_id = 5
=> age_id int, age_nom varchar(100), age_nif varchar(25), Lca_Id int, Lca_IdAg int, Lca_Fecha date, Lca_HFecha date, Lca_Cob int, Lca_NCob int, Lca_IdTiva int, Lca_Obs varchar(100), Lca_Base money, Lca_PorIva decimal(5,2), Lca_Iva money, Lca_PorRetencion decimal(5,2), Lca_Retencion money, Lca_Total money
SELECT lca.*,Age_Nom FROM Lca INNER JOIN Age ON Age_Id = Lca_Idag WHERE Lca_ID = 5
=> Lca_Id int, Lca_IdAg int, Lca_Fecha date, Lca_HFecha date, Lca_Cob int, Lca_NCob int, Lca_IdTiva int, Lca_Obs varchar(100), Lca_Base money, Lca_PorIva decimal(5,2), Lca_Iva money, Lca_PorRetencion decimal(5,2), Lca_Retencion money, Lca_Total money, Age_Nom varchar(100)
SELECT Cav_Id,Cav_NFiscal,Fav_Serie,Fav_Numero,Fav_Fecha, (Cav_Serie + '/' + cast(Cav_Numero as varchar(5))) as Albaran,(SELECT (round(cast((ROUND(cast(SUM(lav_Importe) as money),2)) -  (ROUND(cast((SUM(lav_Importe) * Cav_Dto1 / 100)as money),2)) -  (round(cast (((((ROUND(cast(SUM(lav_Importe) as money),2)) -  (ROUND(cast((SUM(lav_Importe) * Cav_Dto1 / 100)as money),2))) * Cav_Dto2 /100)) as money),2))as money),2)) FROM laV where laV_Idcav= cav_id) as importe FROM lcd INNER JOIN Cav ON Cav_Id = Lcd_IdCav INNER JOIN Fav ON Fav_Id = Cav_IdFactura INNER JOIN Cli ON Cli_Id = Fav_IdCli WHERE Lcd_IdLca = 5
=> Cav_Id int, Cav_NFiscal varchar(100), Fav_Serie varchar(10), Fav_Numero int, Fav_Fecha date, Albaran varchar(16), importe money
SELECT SUM(Lca_Base) as SumaLiquidacion FROM Lca WHERE Lca_IdAg = 7 AND Lca_Fecha BETWEEN '01/02/2024 ' AND '29/02/2024' 
=> SumaLiquidacion money
SELECT Lca_Id,Age_Nom,Lca_Fecha,Lca_Base,Lca_Iva,Lca_Retencion,Lca_Total FROM Lca INNER JOIN Age ON Lca_IdAg = Age_Id ORDER BY Lca_IdAg,Lca_Fecha
=> Lca_Id int, Age_Nom varchar(100), Lca_Fecha date, Lca_Base money, Lca_Iva money, Lca_Retencion money, Lca_Total money
SELECT Lca_Id,Age_Nom,Lca_Fecha,Lca_Base,Lca_Iva,Lca_Retencion,Lca_Total FROM Lca INNER JOIN Age ON Lca_IdAg = Age_Id WHERE Lca_IdAg = 7ORDER BY Lca_IdAg,Lca_Fecha
=> Lca_Id int, Age_Nom varchar(100), Lca_Fecha date, Lca_Base money, Lca_Iva money, Lca_Retencion money, Lca_Total money
SELECT Fav_Id,Lca_Id,Age_Nom,Lca_Fecha, (Fav_Serie + '/' + CAST(Fav_Numero AS char(5))) AS Factura,Fav_fecha,Fav_CliNom, Fav_Serie,Fav_Numero, Fav_CliCod,Fav_CliNom,Age_Id,Age_Nif,Lca_Base,Lca_Iva,Lca_Retencion,Lca_Total, (Fav_BIva1+Fav_Biva2+Fav_Biva3) AS Fav_Bruto , (SELECT SUM(ISNULL(ROUND(CAST( (ROUND(CAST(Lav_Importe - ROUND(CAST((Lav_Importe * Cav_Dto1 / 100) AS Money),2) as money),2) - ROUND(CAST(ROUND(CAST(Lav_Importe - ROUND(CAST((Lav_Importe * Cav_Dto1 / 100) AS Money),2) as money),2) * Cav_DTO2 /100 AS MONEY),2)) /100 * Lav_Comi AS Money),2),0)) FROM Lav INNER JOIN Cav ON Cav_Id = Lav_IdCav WHERE Cav_Id = Lcd_IdCav) AS Comision, Age_Id,Fav_CliCod,Lca_Base,Age_Nif,Lca_Iva,Lca_Retencion,Lca_Total FROM Lca INNER JOIN Age ON Lca_IdAg = Age_Id INNER JOIN Lcd ON Lca_Id = Lcd_IdLca INNER JOIN Cav ON Lcd_IdCav = Cav_Id INNER JOIN Fav ON Fav_Id = Cav_IdFactura INNER JOIN Cli ON Cli_Id = Fav_IdCli  ORDER BY Age_Nom,Lca_Fecha,Fav_Fecha,Fav_Serie,Fav_Numero
=> Fav_Id int, Lca_Id int, Age_Nom varchar(100), Lca_Fecha date, Factura varchar(16), Fav_fecha date, Fav_CliNom varchar(100), Fav_Serie varchar(10), Fav_Numero int, Fav_CliCod int, Fav_CliNom varchar(100), Age_Id int, Age_Nif varchar(25), Lca_Base money, Lca_Iva money, Lca_Retencion money, Lca_Total money, Fav_Bruto money, Comision money, Age_Id int, Fav_CliCod int, Lca_Base money, Age_Nif varchar(25), Lca_Iva money, Lca_Retencion money, Lca_Total money
SELECT Fav_Id,Lca_Id,Age_Nom,Lca_Fecha, (Fav_Serie + '/' + CAST(Fav_Numero AS char(5))) AS Factura,Fav_fecha,Fav_CliNom, Fav_Serie,Fav_Numero, Fav_CliCod,Fav_CliNom,Age_Id,Age_Nif,Lca_Base,Lca_Iva,Lca_Retencion,Lca_Total, (Fav_BIva1+Fav_Biva2+Fav_Biva3) AS Fav_Bruto ,(Cav_Serie + '/' + CAST(Cav_Numero AS char(5))) AS Albaran, Lav_Des, ISNULL((ROUND(CAST(Lav_Importe - ROUND(CAST((Lav_Importe * Cav_Dto1 / 100) AS Money),2) as money),2) - ROUND(CAST(ROUND(CAST(Lav_Importe - ROUND(CAST((Lav_Importe * Cav_Dto1 / 100) AS Money),2) as money),2) * Cav_DTO2 /100 AS MONEY),2)) ,0) AS Base , Lav_Comi AS Porcentaje, ISNULL(ROUND(CAST( (ROUND(CAST(Lav_Importe - ROUND(CAST((Lav_Importe * Cav_Dto1 / 100) AS Money),2) as money),2) - ROUND(CAST(ROUND(CAST(Lav_Importe - ROUND(CAST((Lav_Importe * Cav_Dto1 / 100) AS Money),2) as money),2) * Cav_DTO2 /100 AS MONEY),2)) /100 * Lav_Comi AS Money),2),0) AS Comision FROM Lca INNER JOIN Age ON Lca_IdAg = Age_Id INNER JOIN Lcd ON Lca_Id = Lcd_IdLca INNER JOIN Cav ON Lcd_IdCav = Cav_Id INNER JOIN Fav ON Fav_Id = Cav_IdFactura INNER JOIN Cli ON Cli_Id = Fav_IdCli INNER JOIN Lav ON Lav_IdCav = Cav_Id  ORDER BY Age_Nom,Lca_Fecha,Fav_Fecha,Fav_Serie,Fav_Numero
=> Fav_Id int, Lca_Id int, Age_Nom varchar(100), Lca_Fecha date, Factura varchar(16), Fav_fecha date, Fav_CliNom varchar(100), Fav_Serie varchar(10), Fav_Numero int, Fav_CliCod int, Fav_CliNom varchar(100), Age_Id int, Age_Nif varchar(25), Lca_Base money, Lca_Iva money, Lca_Retencion money, Lca_Total money, Fav_Bruto money, Albaran varchar(16), Lav_Des varchar(255), Base money, Porcentaje decimal(6,3), Comision money
SELECT Fav_Id,Lca_Id,Age_Nom,Lca_Fecha, Fav_CliNom,(Fav_Serie + '/' + CAST(Fav_Numero AS char(5))) AS Factura,Fav_fecha, Fav_Serie,Fav_Numero, Fav_CliCod,Fav_CliNom,Age_Id,Age_Nif,Lca_Base,Lca_Iva,Lca_Retencion,Lca_Total, (Fav_BIva1+Fav_Biva2+Fav_Biva3) AS Fav_Bruto , (SELECT SUM(ISNULL(ROUND(CAST( (ROUND(CAST(Lav_Importe - ROUND(CAST((Lav_Importe * Cav_Dto1 / 100) AS Money),2) as money),2) - ROUND(CAST(ROUND(CAST(Lav_Importe - ROUND(CAST((Lav_Importe * Cav_Dto1 / 100) AS Money),2) as money),2) * Cav_DTO2 /100 AS MONEY),2)) /100 * Lav_Comi AS Money),2),0)) FROM Lav INNER JOIN Cav ON Cav_Id = Lav_IdCav WHERE Cav_Id = Lcd_IdCav) AS Comision, Age_Id,Fav_CliCod,Lca_Base,Age_Nif,Lca_Iva,Lca_Retencion,Lca_Total FROM Lca INNER JOIN Age ON Lca_IdAg = Age_Id INNER JOIN Lcd ON Lca_Id = Lcd_IdLca INNER JOIN Cav ON Lcd_IdCav = Cav_Id INNER JOIN Fav ON Fav_Id = Cav_IdFactura INNER JOIN Cli ON Cli_Id = Fav_IdCli  ORDER BY Age_Nom,Lca_Fecha,Fav_CliNom,Fav_Fecha,Fav_Serie,Fav_Numero
=> Fav_Id int, Lca_Id int, Age_Nom varchar(100), Lca_Fecha date, Fav_CliNom varchar(100), Factura varchar(16), Fav_fecha date, Fav_Serie varchar(10), Fav_Numero int, Fav_CliCod int, Fav_CliNom varchar(100), Age_Id int, Age_Nif varchar(25), Lca_Base money, Lca_Iva money, Lca_Retencion money, Lca_Total money, Fav_Bruto money, Comision money, Age_Id int, Fav_CliCod int, Lca_Base money, Age_Nif varchar(25), Lca_Iva money, Lca_Retencion money, Lca_Total money
SELECT Fav_Id,Lca_Id,Age_Nom,Lca_Fecha, Fav_CliNom,(Fav_Serie + '/' + CAST(Fav_Numero AS char(5))) AS Factura,Fav_fecha, Fav_Serie,Fav_Numero, Fav_CliCod,Fav_CliNom,Age_Id,Age_Nif,Lca_Base,Lca_Iva,Lca_Retencion,Lca_Total, (Fav_BIva1+Fav_Biva2+Fav_Biva3) AS Fav_Bruto ,(Cav_Serie + '/' + CAST(Cav_Numero AS char(5))) AS Albaran, Lav_Des, ISNULL((ROUND(CAST(Lav_Importe - ROUND(CAST((Lav_Importe * Cav_Dto1 / 100) AS Money),2) as money),2) - ROUND(CAST(ROUND(CAST(Lav_Importe - ROUND(CAST((Lav_Importe * Cav_Dto1 / 100) AS Money),2) as money),2) * Cav_DTO2 /100 AS MONEY),2)) ,0) AS Base , Lav_Comi AS Porcentaje, ISNULL(ROUND(CAST( (ROUND(CAST(Lav_Importe - ROUND(CAST((Lav_Importe * Cav_Dto1 / 100) AS Money),2) as money),2) - ROUND(CAST(ROUND(CAST(Lav_Importe - ROUND(CAST((Lav_Importe * Cav_Dto1 / 100) AS Money),2) as money),2) * Cav_DTO2 /100 AS MONEY),2)) /100 * Lav_Comi AS Money),2),0) AS Comision FROM Lca INNER JOIN Age ON Lca_IdAg = Age_Id INNER JOIN Lcd ON Lca_Id = Lcd_IdLca INNER JOIN Cav ON Lcd_IdCav = Cav_Id INNER JOIN Fav ON Fav_Id = Cav_IdFactura INNER JOIN Cli ON Cli_Id = Fav_IdCli INNER JOIN Lav ON Lav_IdCav = Cav_Id  ORDER BY Age_Nom,Lca_Fecha,Fav_CliNom,Fav_Fecha,Fav_Serie,Fav_Numero
=> Fav_Id int, Lca_Id int, Age_Nom varchar(100), Lca_Fecha date, Fav_CliNom varchar(100), Factura varchar(16), Fav_fecha date, Fav_Serie varchar(10), Fav_Numero int, Fav_CliCod int, Fav_CliNom varchar(100), Age_Id int, Age_Nif varchar(25), Lca_Base money, Lca_Iva money, Lca_Retencion money, Lca_Total money, Fav_Bruto money, Albaran varchar(16), Lav_Des varchar(255), Base money, Porcentaje decimal(6,3), Comision money
Select AGE_ID,AGE_NOM,AGE_TEL,AGE_MOV,AGE_EMA,AGE_COM,AGE_NIF,AGE_DIR,AGE_CP,AGE_POB,AGE_PRO,AGE_PAI,AGE_REg,Age_Fax from AGE
=> AGE_ID int, AGE_NOM varchar(100), AGE_TEL varchar(25), AGE_MOV varchar(25), AGE_EMA varchar(100), AGE_COM decimal(6,3), AGE_NIF varchar(25), AGE_DIR varchar(100), AGE_CP varchar(8), AGE_POB varchar(40), AGE_PRO varchar(2), AGE_PAI int, AGE_REg int, Age_Fax varchar(25)
select isnull(max(age_id),0) +1 from age
=> - int

-- The rest of the subset.
SELECT DISTINCT TOP 5 c.Cav_Serie serie, dbo.c.Cav_Id FROM dbo.Cav AS c LEFT OUTER JOIN Fav f ON f.Fav_Id = c.Cav_IdFactura, Cli WHERE NOT (f.Fav_Id IS NOT NULL AND c.Cav_Id NOT IN (1, 2, -3)) ORDER BY serie DESC, 2;
=> serie varchar(10), Cav_Id int
SELECT [Cav_Id], COUNT(*) n, COUNT(DISTINCT Lav_Des), MIN(Lav_Des), AVG(Lav_Importe), AVG(Lav_Comi) FROM Lav JOIN Cav ON Lav_IdCav=Cav_Id /* notes */ GROUP BY Cav_Id HAVING SUM(Lav_Importe) > 10.5 -- big ones
=> Cav_Id int, n int, - int, - varchar(255), - money, - decimal(38,6)
SELECT CASE Cav_Situa WHEN 2 THEN 'libre' WHEN 3 THEN 'x' ELSE NULL END, CASE WHEN Cav_Id>1 THEN 1 ELSE 2.5 END, COALESCE(Cav_IdLca, 0), CONVERT(varchar(10), '01/02/2026', 103) FROM Cav WHERE EXISTS (SELECT * FROM Lav WHERE Lav_IdCav=Cav_Id) AND Cav_Serie LIKE N'A%' AND Cav_NFiscal NOT LIKE '_b[a-c]'
=> - varchar(5), - decimal(11,1), - int, - varchar(10)
SELECT Cav_Id FROM Cav UNION ALL SELECT Lav_Importe FROM Lav UNION SELECT NULL ORDER BY Cav_Id DESC
=> Cav_Id money
SELECT LEN(Cav_Serie), UPPER(Cav_Serie), LOWER(RTRIM(LTRIM(Cav_NFiscal))), ABS(-Cav_Dto1), Cav_Numero % 10 FROM Cav
=> - int, - varchar(10), - varchar(100), - decimal(5,2), - int
SELECT 1
=> - int
select 'a' + 'b' as ab, 0x1F, NULL
=> ab varchar(2), - varbinary(max), - null
INSERT Lcd VALUES (1, 2), (1, 3)
INSERT INTO Lcd (Lcd_IdCav, Lcd_IdLca) SELECT Cav_Id, ISNULL(Cav_IdLca, 0) FROM Cav WHERE Cav_Situa = 2
UPDATE Age SET AGE_NOM = UPPER(AGE_NOM) + '.', AGE_COM = AGE_COM * 1.1, AGE_IMG = 0xFF WHERE AGE_ID BETWEEN 1 AND '9'
DELETE FROM Lcd WHERE Lcd_IdLca = 5; -- done
SELECT Fav_Id FROM Fav WHERE Fav_Fecha = '2026-02-28'
=> Fav_Id int
DELETE Age
DROP TABLE dbo.Rec
CREATE TABLE Vespara..Prueba (A int IDENTITY NOT NULL CONSTRAINT PK_P PRIMARY KEY CLUSTERED, [B c] nvarchar(20) UNIQUE, D numeric(9,3) NULL, E char(3), F bit NOT NULL, G varbinary(max), H date, CONSTRAINT U UNIQUE (E, F))
CREATE UNIQUE NONCLUSTERED INDEX IX ON Rec (Rec_Sit DESC, Rec_Id ASC)
