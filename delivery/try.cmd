@echo off
rem Goes through the array tour over the simulator, in the JVM of JAVA_HOME or else of PATH. The
rem arguments go to the tour. No blocks: a path such as C:\Program Files (x86) would end them.
setlocal
set "HERE=%~dp0"
set "JAVA=java"
if not defined JAVA_HOME goto ask
set "JAVA=%JAVA_HOME%\bin\java.exe"
if not exist "%JAVA%" goto wrong_home

:ask
set "ANSWER=%TEMP%\quorvelj-try-%RANDOM%.txt"
"%JAVA%" -XshowSettings:properties -version >"%ANSWER%" 2>&1
set ARCH=
set VERSION=
for /f "usebackq tokens=1,3" %%a in ("%ANSWER%") do if "%%a"=="os.arch" set "ARCH=%%b"
for /f "usebackq tokens=1,3" %%a in ("%ANSWER%") do if "%%a"=="java.version" set "VERSION=%%b"
if not defined ARCH goto no_java
del "%ANSWER%"
if not "%ARCH%"=="x86" goto wrong_width

"%JAVA%" "-Djava.library.path=%HERE%windows-x86;%HERE%simulator\windows-x86" -jar "%HERE%array-tour.jar" %*
set "STATUS=%ERRORLEVEL%"
echo.
if "%STATUS%"=="0" echo try.cmd: the tour went through, over the simulator and windows-x86\quorvelj.dll
if not "%STATUS%"=="0" echo try.cmd: the tour ended with status %STATUS% over the simulator and windows-x86\quorvelj.dll;
if not "%STATUS%"=="0" echo          README.md says what to do when it does not work
echo          in %JAVA%, Java %VERSION%, 32-bit
exit /b %STATUS%

:wrong_home
echo try.cmd: JAVA_HOME is %JAVA_HOME%, and no bin\java.exe is there>&2
exit /b 3

:no_java
type "%ANSWER%" >&2
del "%ANSWER%"
echo try.cmd: no Java that starts: %JAVA%. Set JAVA_HOME to a 32-bit JVM, or put it on PATH>&2
exit /b 3

:wrong_width
echo try.cmd: this JVM is for %ARCH%, and quorvelj.dll needs one for 32-bit Windows, x86; there are such>&2
echo          JVMs from Java 8 to 23: set JAVA_HOME to one. Asked was %JAVA%, Java %VERSION%>&2
exit /b 3
