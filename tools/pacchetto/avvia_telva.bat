@echo off
rem Starts Telva on the sample job of this folder, wherever it lies, and shows the list that comes back.
setlocal EnableExtensions DisableDelayedExpansion
rem Settings files are Windows-1252, whatever code page the console has.
set "PAGINA="
for /f "tokens=2 delims=:." %%p in ('chcp') do set "PAGINA=%%p"
chcp 1252 >nul
rem Also a folder on the network. Its path stands in quotes everywhere: it may hold & ^ ! and the like.
pushd "%~dp0"
set "LAVORO=esempio\lavori\dimo01"
set "ELENCO=%LAVORO%\TelvaOut.txt"
set "DIRLAV=esempio\impostazioni\dirlav"

rem Opened inside the zip, this file comes alone.
if not exist telva.exe (
    echo Qui manca telva.exe. Estraete prima dallo zip l'intera cartella,
    echo poi avviate avvia_telva.bat dalla cartella estratta.
    goto fine
)
rem An old answer must not be taken for a new one.
for %%f in ("%ELENCO%" "%DIRLAV%") do (
    if exist %%f del %%f 2>nul
    if exist %%f goto protetta
)
>"%DIRLAV%" echo "%CD%\esempio\lavori"
if not exist "%DIRLAV%" goto protetta
rem A path with letters that Windows-1252 lacks: as seen from here, then.
for /f "usebackq delims=" %%l in ("%DIRLAV%") do (
    if not exist "%%~l\dimo01\STRUTTUR.STR" >"%DIRLAV%" echo esempio\lavori
)

echo Telva si apre sul lavoro di esempio: scegliete gli elementi,
echo poi date Aggiorna ed Esci (Ctrl+G) per restituire l'elenco.
echo.
start "Telva" /wait telva.exe "|diroot=%CD%\esempio|LAVORO=dimo01|"
if not "%ERRORLEVEL%"=="0" (
    echo Telva si e' chiuso con un errore: nessun elenco restituito.
    goto fine
)
if not exist "%ELENCO%" (
    echo Avete chiuso senza Aggiorna ed Esci: nessun elenco restituito.
    goto fine
)
set "SCELTI="
for /f "usebackq" %%e in ("%ELENCO%") do set "SCELTI=1"
if defined SCELTI (
    echo Telva ha restituito questi elementi:
    echo.
    type "%ELENCO%"
) else (
    echo Telva ha restituito un elenco vuoto: nessun elemento scelto.
)
echo.
echo L'elenco si trova in %ELENCO%
goto fine

:protetta
echo In questa cartella non si puo' scrivere. Estraete lo zip in una vostra
echo cartella, per esempio sul Desktop, e avviate avvia_telva.bat da li'.

:fine
echo.
echo Premete un tasto per chiudere.
pause >nul
popd
if defined PAGINA chcp %PAGINA% >nul
