-- The tables, in T-SQL: run as is on SQL Server, through the compiler on the other engines, which
-- takes the types from here too.
--
-- No foreign keys: the sales application deletes old invoices, and the joins of the statements leave
-- their delivery notes out.
-- Line amounts may have four decimals; percentages are exact.

-- Settlements. The key is numbered by the database, and a number is never used twice.
CREATE TABLE Lca (
  Lca_Id int IDENTITY(1,1) NOT NULL PRIMARY KEY,
  Lca_IdAg int NOT NULL,
  Lca_Fecha date NULL,
  Lca_HFecha date NULL,
  Lca_Cob int NULL,
  Lca_NCob int NULL,
  Lca_IdTiva int NULL,
  Lca_Obs varchar(100) NULL,
  Lca_Base money NULL,
  Lca_PorIva decimal(5,2) NULL,
  Lca_Iva money NULL,
  Lca_PorRetencion decimal(5,2) NULL,
  Lca_Retencion money NULL,
  Lca_Total money NULL
);
CREATE INDEX Lca_Agente ON Lca (Lca_IdAg, Lca_Fecha);
CREATE INDEX Lca_PorFecha ON Lca (Lca_Fecha);

-- Delivery notes of a settlement. No note is ever paid twice.
CREATE TABLE Lcd (
  Lcd_IdLca int NOT NULL,
  Lcd_IdCav int NOT NULL PRIMARY KEY
);
CREATE INDEX Lcd_Liquidacion ON Lcd (Lcd_IdLca);

-- Agents.
CREATE TABLE Age (
  AGE_ID int NOT NULL PRIMARY KEY,
  AGE_NOM varchar(100) NULL,
  AGE_NIF varchar(25) NULL,
  AGE_DIR varchar(100) NULL,
  AGE_CP varchar(8) NULL,
  AGE_POB varchar(40) NULL,
  AGE_PRO varchar(2) NULL,
  AGE_PAI int NULL,
  AGE_TEL varchar(25) NULL,
  AGE_MOV varchar(25) NULL,
  AGE_EMA varchar(100) NULL,
  AGE_Fax varchar(25) NULL,
  AGE_COM decimal(6,3) NULL,
  AGE_REG int NULL,
  AGE_IMG varbinary(max) NULL
);

-- Delivery notes. Cav_IdLca is the settlement that took the note, Null or 0 if none did.
CREATE TABLE Cav (
  Cav_Id int NOT NULL PRIMARY KEY,
  Cav_Serie varchar(10) NULL,
  Cav_Numero int NULL,
  Cav_NFiscal varchar(100) NULL,
  Cav_Dto1 decimal(5,2) NULL,
  Cav_DTO2 decimal(5,2) NULL,
  Cav_IdFactura int NULL,
  Cav_Agente int NULL,
  Cav_Situa int NULL,
  Cav_IdLca int NULL
);
CREATE INDEX Cav_Pendientes ON Cav (Cav_Agente, Cav_Situa, Cav_IdLca, Cav_IdFactura);
CREATE INDEX Cav_Liquidacion ON Cav (Cav_IdLca);
CREATE INDEX Cav_Factura ON Cav (Cav_IdFactura);

-- Lines of delivery notes.
CREATE TABLE Lav (
  Lav_Id int NOT NULL PRIMARY KEY,
  Lav_IdCav int NOT NULL,
  Lav_Importe money NULL,
  Lav_Comi decimal(6,3) NULL,
  Lav_Des varchar(255) NULL
);
CREATE INDEX Lav_Albaran ON Lav (Lav_IdCav);

-- Invoices.
CREATE TABLE Fav (
  Fav_Id int NOT NULL PRIMARY KEY,
  Fav_Serie varchar(10) NULL,
  Fav_Numero int NULL,
  Fav_Fecha date NULL,
  Fav_IdCli int NULL,
  Fav_CliCod int NULL,
  Fav_CliNom varchar(100) NULL,
  Fav_BIva1 money NULL,
  Fav_Biva2 money NULL,
  Fav_Biva3 money NULL
);

-- Customers.
CREATE TABLE Cli (
  Cli_Id int NOT NULL PRIMARY KEY,
  Cli_Cod int NULL,
  Cli_Nom varchar(100) NULL
);

-- Receipts of invoices.
CREATE TABLE Rec (
  Rec_Id int NOT NULL PRIMARY KEY,
  Rec_IdFac int NOT NULL,
  Rec_Sit int NULL,
  Rec_Serie varchar(10) NULL,
  Rec_Numero int NULL
);
CREATE INDEX Rec_Factura ON Rec (Rec_IdFac, Rec_Sit);

-- Orders.
CREATE TABLE PedCa (
  PedCa_Id int NOT NULL PRIMARY KEY,
  PedCa_Dto1 decimal(5,2) NULL,
  PEDCA_DTO2 decimal(5,2) NULL
);

-- Lines of orders.
CREATE TABLE PedLi (
  LiPed_Id int NOT NULL PRIMARY KEY,
  PedLi_IdPedca int NOT NULL,
  PedLi_Importe money NULL,
  PedLi_Comi decimal(6,3) NULL
);
CREATE INDEX PedLi_Pedido ON PedLi (PedLi_IdPedca);

-- Shared by several applications: rates of VAT and withholding by regime and first day of validity.
CREATE TABLE Vespara.dbo.Tivas (
  Tiva_Id int NOT NULL PRIMARY KEY,
  Tiva_reg int NULL,
  Tiva_Art int NULL,
  Tiva_Fecha date NULL,
  Tiva_Iva decimal(5,2) NULL,
  Tiva_Ret decimal(5,2) NULL
);
CREATE INDEX Tivas_Regimen ON Vespara.dbo.Tivas (Tiva_reg, Tiva_Art, Tiva_Fecha);

-- Coded lists, by process and language.
CREATE TABLE Vespara.dbo.situaciones (
  Sit_Proceso int NOT NULL,
  Sit_Idioma int NOT NULL,
  Sit_Cod int NOT NULL,
  Sit_Des varchar(100) NULL,
  PRIMARY KEY (Sit_Proceso, Sit_Idioma, Sit_Cod)
);

CREATE TABLE Vespara.dbo.PAIS (
  PAIS_COD int NOT NULL PRIMARY KEY,
  PAIS_NOM varchar(100) NULL
);

CREATE TABLE Vespara.dbo.PROV (
  PROV_COD int NOT NULL PRIMARY KEY,
  PROV_NOM varchar(100) NULL
);
