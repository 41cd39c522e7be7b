@rem SPDX-License-Identifier: MIT
@echo off
rem Runs the test programs in the folder "programs" and writes report.txt beside this file.
rem usage: run-tests.cmd [PROGRAM...]      without a name all programs run
rem The exit code is the number of programs that did not pass.
setlocal
set "folder=%~dp0"
set "report=%folder%report.txt"
set "output=%folder%output.txt"
rem From the folder "programs". The programs read it in a character set that may lack letters of the whole path.
set "KAVLIX_TEST_COUNTS=..\counts.cmd"
if "%KAVLIX_TEST_SECONDS%"=="" set "KAVLIX_TEST_SECONDS=600"
set "total_programs=0"
set "total_tests=0"
set "total_failed=0"
set "total_skipped=0"
set "total_notes=0"
set "total_bad=0"

>"%report%" echo Report of the tests of Kavlix @PROJECT_VERSION@, @KAVLIX_PACKAGE_SYSTEM@, @CMAKE_BUILD_TYPE@, %DATE% %TIME%
call :environment >>"%report%" 2>&1

cd /d "%folder%programs"
if "%~1"=="" goto all
:named
call :run %1
shift
if not "%~1"=="" goto named
goto summary
:all
for /f %%p in (programs.txt) do call :run %%p

:summary
del "%KAVLIX_TEST_COUNTS%" "%output%" 2>nul
set "line=SUMMARY: %total_programs% programs, %total_bad% of them not passed; %total_tests% tests, %total_failed% failed, %total_skipped% skipped, %total_notes% notes"
echo.
echo %line%
echo The report is %report%
>>"%report%" echo.
>>"%report%" echo %line%
exit /b %total_bad%

rem Runs one program and adds its counts and its output, which holds only what did not pass, to the report.
:run
set "tests=?"
set "failed=0"
set "skipped=0"
set "notes=0"
if exist "%KAVLIX_TEST_COUNTS%" del "%KAVLIX_TEST_COUNTS%"
echo Running %1 ...
.\%1.exe --gtest_brief=1 --gtest_color=no >"%output%" 2>&1
set "code=%ERRORLEVEL%"
if exist "%KAVLIX_TEST_COUNTS%" call "%KAVLIX_TEST_COUNTS%"
set "result=passed"
if not "%code%"=="0" set "result=NOT PASSED"
if "%tests%"=="?" set "result=DID NOT END BY ITSELF"
set "line=%1: %result%, exit code %code%, %tests% tests, %failed% failed, %skipped% skipped, %notes% notes"
echo   %line%
>>"%report%" echo.
>>"%report%" echo ==== %line%
type "%output%" >>"%report%"
set /a total_programs=total_programs+1
if not "%tests%"=="?" set /a total_tests=total_tests+tests
set /a total_failed=total_failed+failed
set /a total_skipped=total_skipped+skipped
set /a total_notes=total_notes+notes
if not "%result%"=="passed" set /a total_bad=total_bad+1
goto :eof

:environment
ver
if exist "%SystemRoot%\system32\winecfg.exe" echo This is Wine.
chcp
echo Processor: %PROCESSOR_ARCHITECTURE%, %NUMBER_OF_PROCESSORS% of them; session %SESSIONNAME%
set "windows=HKLM\SOFTWARE\Microsoft\Windows NT\CurrentVersion"
call :value "%windows%" ProductName
call :value "%windows%" CurrentBuild
call :value "HKLM\SYSTEM\CurrentControlSet\Control\Nls\CodePage" ACP
call :value "HKLM\SYSTEM\CurrentControlSet\Control\Nls\CodePage" OEMCP
call :value "HKCU\Control Panel\International" LocaleName
call :value "HKLM\SYSTEM\CurrentControlSet\Control\TimeZoneInformation" TimeZoneKeyName
call :value "HKCU\Control Panel\Desktop\WindowMetrics" AppliedDPI
call :value "HKCU\Control Panel\Desktop" LogPixels
call :value "HKCU\Control Panel\Desktop" FontSmoothing
call :value "HKCU\Software\Wine\Fonts\Replacements" Arial
for %%f in (arial tahoma segoeui micross cour msgothic) do if exist "%SystemRoot%\Fonts\%%f.*" echo Font: %%f
goto :eof

rem Prints one value of the registry, if it is there.
:value
reg query %1 /v %2 >"%output%" 2>nul
if not errorlevel 1 for /f "usebackq skip=2 tokens=1,2*" %%a in ("%output%") do echo %%a: %%c
goto :eof
