"""The programs that are tried, an entry each. To try another one, add an entry."""

import random
from dataclasses import dataclass, field
from typing import Optional


@dataclass(frozen=True)
class Program:
    """Commands run in the home folder of the trial; a command that fails ends the trial."""
    name: str
    packages: tuple                  # of Debian
    make: tuple = ()                 # makes the program's data
    window: Optional[str] = None     # a program with a window, which runs for some seconds
    browser: Optional[str] = None    # a browser; {url} is the page that it opens
    again: tuple = ()                # has to work after the clean-up as before
    same: tuple = ()                 # prints the same before and after the clean-up
    offline: tuple = ()              # installs without a network: told, but no fault when it does not
    seconds: float = 10
    files: dict = field(default_factory=dict)  # files that are there before, by their name


FIREFOX = ('user_pref("browser.shell.checkDefaultBrowser", false);\n'
           'user_pref("datareporting.policy.dataSubmissionEnabled", false);\n'
           'user_pref("browser.aboutwelcome.enabled", false);\n')
MODULE = {"hello/go.mod": "module hello\n\ngo 1.18\n",
          "hello/main.go": 'package main\n\nimport ("fmt"; "net/http")\n\n'
                           'func main() { fmt.Println(http.StatusText(200)) }\n'}
CRATE = {"crate/Cargo.toml": '[package]\nname = "crate"\nversion = "0.1.0"\nedition = "2021"\n',
         "crate/src/main.rs": 'fn main() { println!("pear"); }\n'}
NODE = {"app/package.json": '{"name": "app", "version": "1.0.0", "dependencies": {"lodash": "4.17.21"}}\n'}
LOOK = "cd app && node -e \"console.log(require('lodash').chunk([1, 2, 3], 2).length)\""
# What Debian has of these does not run with every Node.
TOOL = ("npm install --no-audit --no-fund --prefix tools %s && "
        "mkdir -p .local/bin && ln -s ~/tools/node_modules/.bin/%s .local/bin/")
SDIST = {"plum/setup.py": "from setuptools import setup\nsetup(name='plum', version='1.0', py_modules=['plum'])\n",
         "plum/plum.py": f"def main(): print('plum')\n\n\nSEED = '{random.Random(7).randbytes(400_000).hex()}'\n"}
SCRIPT = {"code/pears.py": "def pears(n: int) -> int:\n    return n + 1\n\n\nprint(pears(1))\n"}
LETTER = {"Documents/letter.txt": "Dear orchard,\nthe pears are ripe.\n"}
PICTURES = ("mkdir -p Pictures && for i in 1 2 3 4 5 6; do "
            "python3 -c \"import random; random.seed($i); w,h=900,600; "
            "open('Pictures/p$i.ppm','wb').write(b'P6 %d %d 255\\n' % (w,h) + random.randbytes(w*h*3))\"; done")
# Flatpak asks on the system's bus whether children may install; here nobody answers.
FLATPAK = """
set -e
export DBUS_SYSTEM_BUS_ADDRESS=$DBUS_SESSION_BUS_ADDRESS
mkdir -p build/files/bin build/var build/export && cd build
printf '[Application]\\nname=org.example.Pear\\nruntime=org.example.Base/x86_64/1\\n' > metadata
printf '#!/bin/sh\\necho pear\\n' > files/bin/pear; chmod +x files/bin/pear
head -c 3000000 /dev/urandom > files/seeds
cd ..
ostree init --mode=archive-z2 --repo=repo
flatpak build-export --disable-sandbox repo build
flatpak build-update-repo repo
flatpak --user remote-add --no-gpg-verify orchard repo
flatpak --user install -y --noninteractive --no-deps orchard org.example.Pear
"""

PROGRAMS = (
    Program("firefox-esr", ("firefox-esr",), browser="firefox-esr --no-remote {url}",
            make=("firefox-esr --headless --CreateProfile 'trial' && "
                  "for p in .mozilla/firefox/*.trial .config/mozilla/firefox/*.trial; do "
                  "[ -d $p ] && cp trial.js $p/user.js; done; true",),
            files={"trial.js": FIREFOX}),
    Program("chromium", ("chromium",),
            browser="chromium --no-sandbox --no-first-run --password-store=basic {url}"),
    Program("falkon", ("falkon",), browser="falkon {url}"),
    Program("qutebrowser", ("qutebrowser",), browser="qutebrowser -s url.start_pages about:blank {url}"),
    Program("epiphany", ("epiphany-browser",), browser="epiphany-browser {url}"),
    Program("konqueror", ("konqueror",), browser="konqueror {url}"),
    Program("thunderbird", ("thunderbird",), window="thunderbird --no-remote", seconds=25),
    Program("evolution", ("evolution",), window="evolution", seconds=20),
    Program("geary", ("geary",), window="geary", seconds=12),
    Program("telegram-desktop", ("telegram-desktop",), window="telegram-desktop", seconds=12),
    Program("npm", ("npm",), make=("cd app && npm install --no-audit --no-fund",), files=NODE, same=(LOOK,),
            again=("cd app && rm -rf node_modules && npm install --no-audit --no-fund",),
            offline=("cd app && rm -rf node_modules && npm ci --offline --no-audit --no-fund",)),
    Program("yarn", ("npm",), make=(TOOL % ("yarn@1", "yarn"), "cd app && yarn install"), files=NODE,
            same=(LOOK,), again=("cd app && rm -rf node_modules && yarn install",),
            offline=("cd app && rm -rf node_modules && yarn install --offline",)),
    Program("pnpm", ("npm",), make=(TOOL % ("pnpm@8", "pnpm"), "cd app && pnpm install"), files=NODE,
            same=(LOOK,), again=("cd app && rm -rf node_modules && pnpm install",),
            offline=("cd app && rm -rf node_modules && pnpm install --offline",)),
    Program("pip", ("python3-venv", "python3-pip"), files=SDIST,
            make=("python3 -m venv --system-site-packages venv && cd plum && python3 setup.py -q sdist && "
                  "{ python3 -m http.server 8437 --bind 127.0.0.1 --directory dist & sleep 1; "
                  "~/venv/bin/pip install --no-build-isolation --no-index http://127.0.0.1:8437/plum-1.0.tar.gz; "
                  "code=$?; kill %1; exit $code; }",),
            same=("venv/bin/python -c 'import plum; plum.main()'",), again=("venv/bin/pip show -q plum",)),
    Program("cargo", ("cargo",), files=CRATE, make=("cd crate && cargo build --release && cargo build",),
            same=("cd crate && cargo run -q",), again=("cd crate && cargo build --offline",)),
    Program("go", ("golang-go",), files=MODULE, make=("cd hello && go build -o hello .",),
            same=("hello/hello",), again=("cd hello && go vet . && go build -o hello .",)),
    Program("ccache", ("ccache", "gcc"), files={"c/main.c": "int main(void) { return 0; }\n"},
            make=("cd c && ccache -M 2G && for i in $(seq 80); do echo \"int f$i(void) { return $i; }\" > $i.c; "
                  "ccache gcc -c $i.c; done",),
            same=("ccache -p | grep max_size",), again=("cd c && ccache gcc -c main.c",)),
    Program("mypy", ("mypy",), files=SCRIPT, make=("cd code && mypy pears.py",),
            again=("cd code && mypy pears.py",)),
    Program("black", ("black",), files=SCRIPT, make=("black -q code",), again=("black -q --check code",)),
    Program("gradle", ("gradle",), files={"g/build.gradle": "task pear { doLast { println 'pear' } }\n"},
            make=("cd g && gradle --offline --no-daemon -q pear",),
            again=("cd g && gradle --offline --no-daemon -q pear",)),
    Program("flatpak", ("flatpak", "ostree"), make=(FLATPAK,),
            same=("flatpak --user list --columns=application", "flatpak --user remotes --columns=name"),
            again=("flatpak --user repair",)),
    Program("wine", ("wine",), make=("wineboot -i",), again=("wine cmd /c ver",), same=("ls .wine | grep -v reg",)),
    Program("gimp", ("gimp",), make=("gimp -i -b '(gimp-quit 0)'",), again=("gimp -i -b '(gimp-quit 0)'",)),
    Program("inkscape", ("inkscape",),
            files={"a.svg": '<svg xmlns="http://www.w3.org/2000/svg" width="90" height="90">'
                                  '<text y="40">Pear</text></svg>'},
            make=("inkscape a.svg --export-filename=a.png",), again=("inkscape a.svg --export-filename=b.png",)),
    Program("libreoffice", ("libreoffice-writer",), files=LETTER,
            make=("soffice --headless --convert-to pdf Documents/letter.txt",),
            again=("soffice --headless --convert-to odt Documents/letter.txt",)),
    Program("gwenview", ("gwenview",), make=(PICTURES,), window="gwenview Pictures"),
    Program("dolphin", ("dolphin",), make=(PICTURES,), window="dolphin Pictures"),
    Program("kate", ("kate",), files=LETTER, window="kate Documents/letter.txt"),
    Program("nautilus", ("nautilus",), make=(PICTURES,), window="nautilus Pictures"),
    Program("shotwell", ("shotwell",), make=(PICTURES,), window="shotwell"),
    Program("rhythmbox", ("rhythmbox",), window="rhythmbox"),
    Program("vlc", ("vlc",), window="vlc --no-qt-privacy-ask"),
)
