@echo off
rem Lets an engineer select elements of a job and prints the list.
rem   avvia_telva.bat [ROOT [JOB [KIND ["LIST"]]]]
rem ROOT: installation folder. JOB: six-character job code. KIND: 0 nodes, 1 bars, 2 shells,
rem 3 continuous elements. LIST: selection to start from, such as "1-5,7"; "0" selects all.
rem The program is %TELVA%; when that is not set ROOT\progra\telva.exe, or else the one a folder above
rem this file.
rem Exit code: 0 a list was handed back, 1 cancelled, 2 something is wrong.
setlocal
set "ROOT=%~1"
set "JOB=%~2"
set "KIND=%~3"
set "LIST=%~4"
if not defined ROOT set "ROOT=c:\telva"
if not defined JOB set "JOB=dimo01"
if not defined KIND set "KIND=1"
if not defined TELVA if exist "%ROOT%\progra\telva.exe" set "TELVA=%ROOT%\progra\telva.exe"
if not defined TELVA set "TELVA=%~dp0..\telva.exe"

rem The jobs folder is named by the installation, with or without quotes and a last backslash. The file
rem is Windows-1252, whatever code page the console has.
for /f "tokens=2 delims=:." %%p in ('chcp') do set "PAGE=%%p"
chcp 1252 >nul
set "JOBS="
for /f "usebackq delims=" %%l in ("%ROOT%\impostazioni\dirlav") do set "JOBS=%%~l"
chcp %PAGE% >nul
if not defined JOBS (
    echo No installation in %ROOT%
    exit /b 2
)
if "%JOBS:~-1%"=="\" set "JOBS=%JOBS:~0,-1%"
set "FOLDER=%JOBS%\%JOB%"
if not exist "%FOLDER%\STRUTTUR.STR" (
    echo No job in %FOLDER%
    exit /b 2
)

rem An old answer must not be taken for a new one.
if exist "%FOLDER%\TelvaOut.txt" del "%FOLDER%\TelvaOut.txt"
>"%FOLDER%\TelvaIn.txt" echo Selection for %JOB%
>>"%FOLDER%\TelvaIn.txt" echo.%LIST%
>>"%FOLDER%\TelvaIn.txt" echo %KIND%

start "" /wait "%TELVA%" "|diroot=%ROOT%|LAVORO=%JOB%|"
rem Not "if errorlevel 1": the code of a crash is negative.
if not "%ERRORLEVEL%"=="0" (
    echo Telva ended with an error.
    exit /b 2
)
if not exist "%FOLDER%\TelvaOut.txt" (
    echo Cancelled.
    exit /b 1
)
type "%FOLDER%\TelvaOut.txt"
exit /b 0
