@echo off
rem Compares the layouts of the bridge with those of the library's headers, a line a record.
rem names.h says which headers. Returns 0 where all agree.
rem Usage: set CFLAGS=/I...    run.bat [RECORD...]    in a prompt that finds the compiler cl
setlocal enabledelayedexpansion
set "here=%~dp0"
if not defined CC set "CC=cl /nologo"
if not exist "%here%out" mkdir "%here%out"
set "options="
call :build header
if errorlevel 1 (
  type "%here%out\header.log"
  echo The headers that names.h includes do not compile; CFLAGS=/I... says where they are.
  exit /b 2
)
set /a agree=0, differ=0, open=0
for /f "usebackq tokens=1-3" %%a in ("%here%records.txt") do (
  set "wanted="
  if "%~1"=="" set wanted=1
  for %%r in (%*) do if "%%r"=="%%a" set wanted=1
  if defined wanted call :probe %%a %%b %%c
)
echo %agree% agree, %differ% differ, %open% open
set /a others=differ+open, missing=-agree-differ-open
for %%r in (%*) do set /a missing+=1
if %missing% gtr 0 (
  echo not all of these are records: %*
  exit /b 1
)
if not %others%==0 exit /b 1
exit /b 0

:build
%CC% %CFLAGS% %options% "/Fe%here%out\%1.exe" "/Fo%here%out\%1.obj" "%here%%1.c" >"%here%out\%1.log" 2>&1
exit /b %errorlevel%

:probe
set "padded=%1                                      "
set "padded=%padded:~0,38%"
set "options="
call :build %1
if not errorlevel 1 goto run
set "options=-DONLY=0"
call :build %1
if errorlevel 1 (
  echo OPEN  %padded% the header does not know %1     %3
  set /a open+=1
  exit /b 0
)
set "unknown="
for /l %%n in (1,1,%2) do (
  set "options=-DONLY=%%n"
  call :build %1
  if errorlevel 1 set "unknown=!unknown! -DUNKNOWN_%%n"
)
set "options=%unknown%"
call :build %1
if errorlevel 1 (
  echo OPEN  %padded% the header does not know a name of FURTHER_%1     %3
  set /a open+=1
  exit /b 0
)
:run
"%here%out\%1.exe"
set result=%errorlevel%
if %result%==0 set /a agree+=1
if %result%==1 set /a differ+=1
if %result% gtr 1 set /a open+=1
exit /b 0
