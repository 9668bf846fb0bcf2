-- Expressions over one row (see values_test.cpp: i 7, n Null, k 2147483647, b 1, m 10.05, r 0.0049,
-- big the largest money, d 12.50, e 7.500, t 'Ñandú ', c 'ab   ', z '12.5', f 28/02/2026) and their
-- results: the type and the value, or '!' and the words of the failure.

-- Whole numbers: 32 bits, division cuts off.
-i / 2 => int -3
i % 4 - -i => int 10
(1 - i) % 4 => int -2
k + 1 => ! El resultado de un cálculo es demasiado grande.
i % (i - 7) => ! División entre cero.
n / 0 => int NULL
2147483648 + 0 => decimal(11,0) 2147483648
ABS(-k) => int 2147483647

-- Money: four places; a quotient is cut off, a product rounds.
m * m => money 101.0025
-m / 7 => money -1.4357
m + big => ! El resultado de un cálculo es demasiado grande.
big * 10 / 10 => ! El resultado de un cálculo es demasiado grande.
ABS(r - m) => money 10.0451

-- Decimals: scales add, a power of ten moves the point, other quotients are cut off.
m * d / 100 => decimal(25,8) 1.25625000
d * e / 1000 => decimal(12,8) 0.09375000
d + e => decimal(7,3) 20.000
d / e => decimal(15,9) 1.666666666
-d / 7 => decimal(9,6) -1.785714
m / d => decimal(23,6) 0.804000
1.5 * 2 => decimal(4,1) 3.0
d / 0 => ! División entre cero.
1.000000000000000001 * e => ! Línea 1, columna 29: el resultado de «*» necesita más de 18 decimales.

-- Conversions of numbers: half away from zero, to int cut off from decimal and rounded from money.
CAST(-1.00005 AS money) => money -1.0001
ROUND(CAST(1.00496 AS money), 2) => money 1.0100
ROUND(CAST(d AS decimal(9,1)) / 100, 2) => decimal(9,3) 0.130
ROUND(CAST(m * e AS decimal(9,4)) / 10, 4) => decimal(9,5) 7.53750
ROUND(i, -1) => int 10
ROUND(m, 9) => money 10.0500
CAST(-12.9 AS int) => int -12
CAST(CAST(12.5 AS money) AS int) => int 13
CAST(3000000000 AS int) => ! El resultado de un cálculo es demasiado grande.
CAST(m AS decimal(3,2)) => ! El resultado de un cálculo es demasiado grande.
CAST(m AS decimal(4,2)) => decimal(4,2) 10.05
CAST(m AS bit) => bit True

-- Texts and numbers.
'[' + CAST(i AS char(3)) + ']' => varchar(5) [7  ]
CAST(-k AS varchar(5)) => varchar(5) *
'A/' + CAST(123456 AS char(5)) + '.' => varchar(8) A/*    .
CAST(r AS varchar) => varchar(30) 0.00
CAST(e AS varchar(4)) => ! El número 7.500 no cabe en varchar(4).
CAST('Ñandú' AS varchar(2)) + '|' + CAST('é' AS char(3)) + '|' => varchar(7) Ña|é  |
t + NULL => varchar(40) NULL
t + '/' + n => ! El texto no es un número: «Ñandú /».
z + 1 => ! El texto no es un número: «12.5».
z + CAST(1 AS money) => money 13.5000
CAST(t AS money) => ! El texto no es un número: «Ñandú ».
CAST(' -3 ' AS int) => int -3
'O''Hara' + N' ñ' => varchar(8) O'Hara ñ
LEN(t) => int 5
LEN(c + c) => int 7
UPPER(t) + LOWER('ÁÉÑ×ŸŽ') => varchar(26) ÑANDÚ áéñ×ÿž
'[' + RTRIM(c) + LTRIM('  x ') + ']' => varchar(11) [abx ]

-- Dates.
CAST(f AS varchar(10)) => varchar(10) 2026-02-28
CONVERT(varchar(10), f, 103) + '!' => varchar(11) 28/02/2026!
CAST('1/3/2026 ' AS date) => date 01/03/2026
CASE WHEN f >= '28/02/2026 ' AND f < '01/03/2026' THEN 1 END => int 1
CASE WHEN CAST(t AS date) = f THEN 1 END => ! El texto no es una fecha: «Ñandú ».

-- Null and choices.
ISNULL(m * n, 0) => money 0.0000
ISNULL(NULL, d) => decimal(5,2) 12.50
ISNULL(n, 2.9) => int 2
COALESCE(n, NULL, d, 1) => decimal(12,2) 12.50
CASE i WHEN 6 THEN 'seis' WHEN 7 THEN 'siete' ELSE 'otro' END => varchar(5) siete
CASE n WHEN NULL THEN 1 ELSE 2 END => int 2
CASE WHEN i > 8 THEN 1 WHEN i > 6 THEN m END => money 10.0500

-- Conditions.
CASE WHEN t = 'ÑANDÚ' AND t <> 'nandu' AND 'ñandú' = t AND t IN ('x', 'ñANDÚ   ') THEN 1 END => int 1
CASE WHEN t + '' = 'ÑANDÚ' AND UPPER(t) = LOWER(t) AND t + '' BETWEEN 'ñ' AND 'O' THEN 1 END => int 1
CASE WHEN t LIKE 'ñ%D_' AND t LIKE '%[a-d][^x]%' AND t NOT LIKE '%[^a-z]' AND c LIKE 'AB' THEN 1 END => int NULL
CASE WHEN t LIKE '%ú' AND t LIKE '__n%' AND t NOT LIKE 'ñ' AND c LIKE '[%a]%' THEN 1 END => int 1
CASE WHEN d = 12.5 AND d < 12.501 AND d > 12.499 AND 12.50000 = d AND d IN (1, 12.5) THEN 1 END => int 1
CASE WHEN m > i AND i < m AND d > m AND NOT m = 10 AND i BETWEEN 6.5 AND 7.5 THEN 1 END => int 1
CASE WHEN n = n OR n <> n OR n IN (1) OR NOT n = 1 OR NULL = NULL THEN 1 ELSE 0 END => int 0
CASE WHEN n IS NULL AND i IS NOT NULL AND EXISTS (SELECT 1 FROM V WHERE i = 7) THEN 1 END => int 1
CASE WHEN i IN (SELECT m - 3.05 FROM V) AND m IN (SELECT CAST('10.05' AS money)) THEN 1 END => int 1
CASE WHEN z = 12.5 THEN 1 END => int 1
CASE WHEN NOT (i = 1 OR i = 2) AND i = '7' AND i > -1 AND i !< 7 AND i != 8 THEN 1 END => int 1

-- Subqueries of one value.
(SELECT i FROM V x WHERE x.n = 8) => int NULL
(SELECT x.t FROM V x WHERE x.i = V.i) + '.' => varchar(21) Ñandú .
(SELECT i FROM V UNION ALL SELECT k FROM V) => ! Una subconsulta que debe dar un valor ha dado más de una fila.

-- Aggregates.
(SELECT SUM(x.i * V.d) FROM V x) => decimal(38,2) 87.50
(SELECT SUM(x.big) FROM V x LEFT JOIN Dos ON 1 = 1) => ! El resultado de un cálculo es demasiado grande.
(SELECT SUM(m) FROM V x WHERE 1 = 0) => money NULL
(SELECT AVG(x.i) + COUNT(n) FROM V x) => int 7
(SELECT AVG(e) / COUNT(DISTINCT t) FROM V) => decimal(38,6) 7.500000
(SELECT MAX(t) + MIN(c) FROM V) => varchar(25) Ñandú ab   
(SELECT COUNT(*) FROM V a, V b LEFT JOIN V c ON c.i = 8 WHERE c.i IS NULL) => int 1
