# Lets an engineer select elements of a job; gives their numbers, each once, ascending. Nothing
# when the engineer has cancelled or selected nothing; an error when something is wrong.
#   .\avvia_telva.ps1 -Root c:\telva -Job dimo01 -Kind 1 -List '1-5,7' -Title 'Bars to check'
# Kind: 0 nodes, 1 bars, 2 shells, 3 continuous elements. List '0' starts with all selected.
# Telva: ROOT\progra\telva.exe, or else the one a folder above this file.
param(
    [string]$Root = 'c:\telva',
    [string]$Job = 'dimo01',
    [ValidateRange(0, 3)][int]$Kind = 1,
    [string]$List = '',
    [string]$Title = "Selection for $Job",
    [string]$Telva = ''
)
$ErrorActionPreference = 'Stop'
$ansi = [Text.Encoding]::GetEncoding(1252)
$Root = (Resolve-Path -LiteralPath $Root).ProviderPath # .NET does not know PowerShell's own folder
if (-not $Telva) {
    $Telva = "$Root\progra\telva.exe"
    if (-not (Test-Path -LiteralPath $Telva)) { $Telva = "$PSScriptRoot\..\telva.exe" }
}

# The jobs folder is named by the installation, with or without quotes and a last backslash.
$jobs = [IO.File]::ReadAllLines("$Root\impostazioni\dirlav", $ansi)[0].Trim().Trim('"').TrimEnd('\')
$in = "$jobs\$Job\TelvaIn.txt"
$out = "$jobs\$Job\TelvaOut.txt"

# An old answer must not be taken for a new one.
if (Test-Path -LiteralPath $out) { Remove-Item -LiteralPath $out }
[IO.File]::WriteAllText($in, "$Title`r`n$List`r`n$Kind`r`n", $ansi)

$argument = '"|diroot={0}|LAVORO={1}|"' -f $Root, $Job
$process = Start-Process -FilePath $Telva -ArgumentList $argument -Wait -PassThru
if ($process.ExitCode -ne 0) { throw "Telva ended with code $($process.ExitCode)." }
if (-not (Test-Path -LiteralPath $out)) { return }

# 1,1-3,7 means 1 2 3 7: ranges are opened, repeated numbers count once.
$numbers = foreach ($item in [IO.File]::ReadAllText($out, $ansi).Trim().Split(',')) {
    $ends = $item.Split('-')
    if ($item) { [int]$ends[0]..[int]$ends[-1] }
}
$numbers | Sort-Object -Unique
