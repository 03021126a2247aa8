"""A computer of its own to try the Windows delivery on: Wine in a fresh prefix, on a virtual display."""

import os
import re
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "scripts"))
from scherm import Anders  # noqa: E402

COMPILER = "x86_64-w64-mingw32"


def eis(voorwaarde, anders):
    if not voorwaarde:
        raise Anders(anders)


def windows(path):
    """A path of this system as a program under Wine knows it."""
    return "Z:" + str(path).replace("/", "\\")


def run_time_folders():
    """Where the DLLs of the tests are: of the compiler, and of the toolkit when it is built."""
    cache = Path(os.environ.get("XDG_CACHE_HOME", Path.home() / ".cache")) / "tavelo-windows"
    folders = [cache_folder / "bin" for cache_folder in cache.glob("qt6-base_*") if (cache_folder / "complete").exists()]
    for dll in ("libstdc++-6.dll", "libwinpthread-1.dll"):
        found = subprocess.run([f"{COMPILER}-g++-posix", f"--print-file-name={dll}"], check=True, capture_output=True,
                               text=True).stdout.strip()
        folders.append(Path(found).resolve().parent)
    return folders


class Wine:
    """A prefix of its own: a computer that nobody used yet."""

    def __init__(self, scherm):
        self.scherm = scherm
        self.prefix = scherm.thuis / "wine"
        self.env = scherm.omgeving | {
            "WINEPREFIX": str(self.prefix), "WINEARCH": "win64", "WINEDEBUG": "-all",
            # Its offers to fetch what it lacks, and its debugger, which would wait for somebody.
            "WINEDLLOVERRIDES": "mscoree,mshtml,winedbg.exe=",
        }
        self.env.pop("QT_QPA_PLATFORM", None)
        self.run_host("wineboot", "--init")
        self.run_host("wineserver", "--wait")
        eis((self.prefix / "system.reg").exists(), "the prefix was not made")
        # Its metric equal stands in for the font that Windows has.
        self.write(r"HKCU\Software\Wine\Fonts\Replacements", "Arial", "Liberation Sans")

    def run_host(self, *command):
        subprocess.run(command, env=self.env, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def start(self, program, *arguments, **more):
        return subprocess.Popen(["wine", str(program), *map(str, arguments)], env=self.env | more, cwd=ROOT,
                                stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, encoding="utf-8", errors="replace")

    def run(self, program, *arguments, seconds=600, **more):
        """Exit code and output."""
        process = self.start(program, *arguments, **more)
        output, _ = process.communicate(timeout=seconds)
        return process.returncode, output

    def write(self, key, name, text, kind="REG_SZ"):
        """A value of the registry, written by another program than ours."""
        code, output = self.run("reg", "add", key, "/v", name, "/t", kind, "/d", text, "/f")
        eis(code == 0, f"reg add: {output}")

    def registry(self, key, value=None):
        """The value's kind and text; nothing when it is not there. Without a value: whether the key is there."""
        code, output = self.run("reg", "query", key, *([] if value is None else ["/ve"] if value == "" else ["/v", value]))
        if value is None:
            return code == 0
        found = re.search(r"^ {4}\S.*?\s+(REG_\w+)\s*(.*?)\r?$", output, re.MULTILINE)
        return (found[1], found[2]) if code == 0 and found else None

    def registry_below(self, key):
        """Every key below one, each with its values as {name: (kind, text)}."""
        _, output = self.run("reg", "query", key, "/s")
        keys, values = {}, {}
        for line in output.splitlines():
            if line.startswith("HKEY_"):
                values = keys.setdefault(line.strip(), {})
            elif found := re.match(r"^ {4}(.*?) {4}(REG_\w+) {4}(.*)$", line):
                values[found[1]] = (found[2], found[3])
        return keys

    def processes(self, program):
        """The numbers of the processes of a program."""
        return [int(path.parent.name) for path in Path("/proc").glob("[0-9]*/comm")
                if self._is_ours(path.parent, program)]

    def _is_ours(self, process, program):
        try:
            return ((process / "comm").read_text().strip() == program
                    and f"WINEPREFIX={self.prefix}".encode() in (process / "environ").read_bytes().split(b"\0"))
        except OSError:
            return False

    def folder(self, *parts):
        """A folder of the user who installs."""
        return next((self.prefix / "drive_c/users").glob("[!P]*")).joinpath(*parts)

    def restart(self):
        """As the computer does, so that what was changed in its settings counts."""
        self.run_host("wineserver", "--wait")

    def close(self):
        subprocess.run(["wineserver", "--kill"], env=self.env, check=False)  # it may have ended by itself
