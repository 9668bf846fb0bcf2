-- What must be refused, and the whole message of the refusal. One or two cases for each problem.

-- More than one statement, or something else.
SELECT 1; DELETE FROM Lcd
=> Línea 1, columna 11: solo se admite una sentencia; sobra «DELETE».
EXEC sp_help
=> Línea 1, columna 1: se esperaba SELECT, INSERT, UPDATE, DELETE, CREATE o DROP y no «EXEC».
SELECT Cav_Id FROM Cav WHERE Cav_Id = 7 OR
=> Línea 1, columna 43: falta una expresión al final de la sentencia.

-- Characters and literals.
SELECT @x
=> Línea 1, columna 8: el carácter «@» no se admite aquí.
SELECT "Cav_Id" FROM Cav
=> Línea 1, columna 8: el carácter «"» no se admite aquí.
SELECT 'abierta FROM Cav
=> Línea 1, columna 8: falta cerrar la comilla «'».
SELECT [Cav_Id FROM Cav
=> Línea 1, columna 8: falta cerrar el corchete «[».
SELECT 1 /* abierto
=> Línea 1, columna 10: falta cerrar el comentario «/*».
SELECT 1e5
=> Línea 1, columna 8: no se admiten números en coma flotante: «1e5».
SELECT Cav_Id FROM Cav WHERE Cav_Id = 99999999999999999999
=> Línea 1, columna 39: el número 99999999999999999999 no cabe en 64 bits.
SELECT 0.1234567890123456789
=> Línea 1, columna 8: el número 0.1234567890123456789 no cabe en 18 decimales.

-- Syntax.
SELECT * FROM
=> Línea 1, columna 14: falta el nombre de una tabla al final de la sentencia.
SELECT Cav_Id FROM Cav JOIN Fav
=> Línea 1, columna 32: falta ON al final de la sentencia.
SELECT Cav_Id FROM Cav FULL JOIN Fav ON 1=1
=> Línea 1, columna 24: no se esperaba «FULL».
SELECT TOP 5 PERCENT * FROM Cav
=> Línea 1, columna 14: no se admite «PERCENT».
SELECT CAST(Cav_Id AS) FROM Cav
=> Línea 1, columna 22: se esperaba un tipo y no «)».
SELECT Cav_Id INTO Otra FROM Cav
=> Línea 1, columna 15: no se esperaba «INTO».
DELETE FROM Cav, Lav
=> Línea 1, columna 16: no se esperaba «,».
CREATE TABLE T (A int DEFAULT 0)
=> Línea 1, columna 23: se esperaba NULL, NOT NULL, IDENTITY, PRIMARY KEY, UNIQUE, «,» o «)» y no «DEFAULT».

-- Names.
SELECT * FROM Nada
=> Línea 1, columna 15: no existe la tabla «Nada».
SELECT * FROM otra.dbo.Cav
=> Línea 1, columna 15: no existe la base de datos «otra».
SELECT * FROM otro.Cav
=> Línea 1, columna 15: se esperaba el esquema dbo y no «otro».
SELECT * FROM Vespara.dbo.Cav
=> La base de datos compartida no tiene la tabla «Cav».
SELECT Cav_Xx FROM Cav
=> Línea 1, columna 8: no existe la columna «Cav_Xx».
SELECT Cav.Cav_Id FROM Cav c
=> Línea 1, columna 8: no hay ninguna tabla de nombre «Cav» en la sentencia.
SELECT Cav_Id FROM Cav a, Cav b
=> Línea 1, columna 8: el nombre de columna «Cav_Id» es ambiguo.
SELECT 1 FROM Cav, Cav
=> Línea 1, columna 20: la tabla «Cav» aparece dos veces; necesita un alias.
SELECT Cav_Id FROM Cav JOIN Fav ON Fav_Id = Lav_Id JOIN Lav ON Lav_IdCav = Cav_Id
=> Línea 1, columna 45: no existe la columna «Lav_Id».
INSERT INTO Lcd (Lcd_IdLca, Lcd_IdCav, LCD_IDLCA) VALUES (1, 2, 3)
=> Línea 1, columna 40: la columna «LCD_IDLCA» aparece dos veces.
UPDATE Cav SET Cav_Situa = 1, cav_situa = 2
=> Línea 1, columna 31: la columna «cav_situa» aparece dos veces.
CREATE TABLE Cav (A int)
=> Línea 1, columna 14: ya existe la tabla «Cav».
SELECT GETDATE()
=> Línea 1, columna 8: no se admite la función «GETDATE».

-- The filters of receipts belong to a table that the report does not join.
SELECT SUM(Lca_Base) as SumaLiquidacion FROM Lca  AND Rec_Serie ='A' 
=> Línea 1, columna 51: no se esperaba «AND».

-- Groups.
SELECT Cav_Serie, Cav_Id FROM Cav GROUP BY Cav_Serie
=> Línea 1, columna 19: la columna «Cav_Id» no está en un agregado ni en GROUP BY.
SELECT Cav_Serie FROM Cav GROUP BY Cav_Serie ORDER BY Cav_Id
=> Línea 1, columna 55: la columna «Cav_Id» no está en un agregado ni en GROUP BY.
SELECT Cav_Serie FROM Cav GROUP BY Cav_Serie HAVING Cav_Id > 1
=> Línea 1, columna 53: la columna «Cav_Id» no está en un agregado ni en GROUP BY.
SELECT Cav_Serie, (SELECT SUM(Lav_Importe) FROM Lav WHERE Lav_IdCav = Cav_Id) FROM Cav GROUP BY Cav_Serie
=> Línea 1, columna 71: la columna «Cav_Id» no está en un agregado ni en GROUP BY.
SELECT Cav_Id FROM Cav WHERE SUM(Cav_Id) > 1
=> Línea 1, columna 30: la función de agregado «SUM» no se admite aquí.
SELECT Cav_Id + 1 FROM Cav GROUP BY Cav_Id + 1
=> Línea 1, columna 44: no se admite «+».
SELECT DISTINCT Cav_Serie FROM Cav ORDER BY Cav_Id
=> Línea 1, columna 45: con DISTINCT o UNION, ORDER BY «Cav_Id» debe estar entre las columnas del resultado.
SELECT Cav_Id FROM Cav ORDER BY 2
=> Línea 1, columna 33: ORDER BY 2 no corresponde a ninguna columna del resultado.
SELECT Cav_Id AS a, Cav_Situa AS a FROM Cav ORDER BY a
=> Línea 1, columna 54: el nombre de columna «a» es ambiguo.
SELECT Cav_Id FROM Cav UNION SELECT Lav_Id, 1 FROM Lav
=> Línea 1, columna 30: las partes del UNION tienen 1 y 2 columnas.
SELECT TOP 1 Cav_Id FROM Cav UNION SELECT 1
=> Línea 1, columna 1: no se admite «TOP con UNION».

-- Types.
SELECT Cav_Id FROM Cav WHERE Cav_Id
=> Línea 1, columna 30: se esperaba una condición en «Cav_Id».
SELECT Cav_Id FROM Cav WHERE Cav_Id = 'doce'
=> Línea 1, columna 39: El texto no es un número: «doce».
SELECT Fav_Id FROM Fav WHERE Fav_Fecha = '2026-02-30'
=> Línea 1, columna 42: El texto no es una fecha: «2026-02-30».
SELECT Fav_Id FROM Fav WHERE Fav_Fecha = 5
=> Línea 1, columna 40: no se pueden combinar date y int en «=».
SELECT Fav_Fecha + 1 FROM Fav
=> Línea 1, columna 18: «+» no admite un operando date.
SELECT SUM(Lav_Des) FROM Lav
=> Línea 1, columna 8: «SUM» no admite un operando varchar(255).
SELECT COUNT() FROM Lav
=> Línea 1, columna 8: la función «COUNT» necesita un argumento.
SELECT ROUND(Lav_Importe, Lav_Id) FROM Lav
=> Línea 1, columna 27: «Lav_Id» no admite un operando que no sea un número entero fijo.
SELECT CASE WHEN 1=1 THEN Fav_Fecha ELSE 1 END FROM Fav
=> Línea 1, columna 8: no se pueden combinar date y int en «CASE».
SELECT CAST(Fav_Fecha AS money) FROM Fav
=> Línea 1, columna 8: no se puede convertir date en «money».
SELECT CAST(Fav_Id AS float) FROM Fav
=> Línea 1, columna 23: no se admite el tipo «float».
SELECT CAST(Fav_Id AS decimal(19,2)) FROM Fav
=> Línea 1, columna 23: el tamaño «19» no se admite.
SELECT CONVERT(varchar(10), Fav_Fecha, 120) FROM Fav
=> Línea 1, columna 8: no se admite «120».
SELECT Lav_Comi * Lav_Comi * Lav_Comi * Lav_Comi * Lav_Comi * Lav_Comi * Lav_Comi FROM Lav
=> Línea 1, columna 72: el resultado de «*» necesita más de 18 decimales.
SELECT Cav_Id FROM Cav WHERE Cav_Id IN (SELECT Lav_Id, Lav_IdCav FROM Lav)
=> Línea 1, columna 37: la subconsulta debe dar una sola columna.
SELECT Cav_Id FROM Cav WHERE Cav_Id LIKE 5
=> Línea 1, columna 37: «LIKE» no admite un operando int.

-- Values of columns.
INSERT INTO Lcd (Lcd_IdLca, Lcd_IdCav) VALUES (1)
=> Línea 1, columna 47: hay 2 columnas y 1 valor.
INSERT INTO Lcd (Lcd_IdLca) VALUES (1)
=> Línea 1, columna 13: falta el valor de la columna «Lcd_IdCav», que no puede quedar vacía.
INSERT INTO Lcd (Lcd_IdLca, Lcd_IdCav) VALUES (Lcd_IdCav, 2)
=> Línea 1, columna 48: no existe la columna «Lcd_IdCav».
INSERT INTO Lca (Lca_Id, Lca_IdAg) VALUES (1, 2)
=> Línea 1, columna 18: la columna «Lca_Id» la numera la base de datos y no admite un valor.
INSERT INTO Lca (Lca_IdAg) VALUES (2147483648)
=> Línea 1, columna 36: el número 2147483648 no cabe en int.
INSERT INTO Lca (Lca_IdAg, Lca_Base) VALUES (1, 922337203685477.5808)
=> Línea 1, columna 49: el número 922337203685477.5808 no cabe en 64 bits.
INSERT INTO Lca (Lca_IdAg, Lca_PorIva) VALUES (1, 999.995)
=> Línea 1, columna 51: el número 999.995 no cabe en decimal(5,2).
INSERT INTO Lca (Lca_IdAg, Lca_Fecha) VALUES (1, 0)
=> Línea 1, columna 50: no se pueden combinar int y date en «0».
INSERT INTO Age (AGE_ID, AGE_PRO) VALUES (1, 280)
=> Línea 1, columna 46: el número 280 no cabe en varchar(2).
INSERT INTO Age (AGE_ID, AGE_IMG) VALUES (1, 'x')
=> Línea 1, columna 46: no se pueden combinar varchar(1) y varbinary(max) en «'x'».
UPDATE Lca SET Lca_IdAg = NULL
=> Línea 1, columna 27: la columna «Lca_IdAg» no puede quedar vacía.

-- Tables.
CREATE TABLE T (A int PRIMARY KEY, B int PRIMARY KEY)
=> Línea 1, columna 42: la tabla ya tiene clave principal; sobra «PRIMARY KEY».
CREATE TABLE T (A int IDENTITY)
=> Línea 1, columna 17: no se admite «IDENTITY sin PRIMARY KEY».
CREATE TABLE T (A int IDENTITY(100,1) PRIMARY KEY)
=> Línea 1, columna 32: no se admite «100».
