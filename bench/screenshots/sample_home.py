#!/usr/bin/env python3
"""Makes a home folder with invented contents, of which pictures of the window are taken.

Large files are reserved, not written: they take their space on the disk, but no time.
"""

import json
import math
import os
import random
import struct
import sys
import uuid
import zlib
from datetime import datetime, timedelta, timezone
from pathlib import Path

MB = 1_000_000
GB = 1_000 * MB

CACHES = {
    "mozilla/firefox/default-release/cache2": 640, "chromium/Default/Cache": 410, "thumbnails/large": 96,
    "mesa_shader_cache": 38, "pip/http-v2": 212, "yarn/v6": 124, "fontconfig": 4, "Homebrew/downloads": 58,
    "gstreamer-1.0": 3,
}
# Path, megabytes, days since it was changed.
FILES = [
    ("Videos/Lake house.mkv", 840, 500), ("Videos/School concert 2024.mp4", 610, 420),
    ("Videos/Clips/Bicycle tour.mov", 175, 90), ("Videos/Clips/First snow.mp4", 92, 300),
    ("Music/Live recordings/Evening set.flac", 64, 30), ("Music/Live recordings/Matinee.flac", 58, 31),
    ("Downloads/linux-desktop-13-amd64.iso", 730, 75), ("Downloads/map-tiles-north.zip", 86, 120),
    ("Downloads/Invoice 2026-03.pdf", 1, 150), ("Downloads/font-collection.tar.gz", 34, 64),
    ("Downloads/slides-draft.pptx", 12, 1), ("Documents/Garden plan.odt", 3, 12),
    ("Documents/Tax return 2025.pdf", 2, 160), ("Documents/Archive/Letters 2019.zip", 46, 900),
    ("Documents/Archive/Old website backup.tar", 118, 1200), ("Virtual machines/test-system.qcow2", 1150, 20),
    ("Projects/weather-map/target/debug/weather-map", 88, 3), ("Projects/weather-map/data/stations.db", 41, 9),
    ("Projects/recipe-book/node_modules/bundle.bin", 67, 14), (".npm/_cacache/content-v2/sha512", 146, 6),
    (".gradle/caches/modules-2/files", 231, 40), (".local/state/syncthing/index.log", 7, 1),
    (".local/share/Trash/files/Holiday slideshow.mp4", 54, 8), (".local/share/inkwell/library.db", 24, 2),
    (".local/share/orbit-notes/attachments", 61, 5), (".cache/inkwell/pages", 19, 2),
]
DUPLICATES = [("Documents/House/Floor plan.pdf", "Downloads/Floor plan (1).pdf", 18),
              ("Pictures/Poster final.tif", "Desktop/Poster final.tif", 37)]
# Days ago, title, items with megabytes and whether they are back where they were.
CLEANUPS = [
    (2, "Smart Scan clean-up", [(".cache/chromium/Default/Code Cache", 1840, False),
                                ("Downloads/linux-desktop-12-amd64.iso", 690, False),
                                (".cache/pip/http", 212, False), (".cache/yarn/v5", 96, False)]),
    (19, "Uninstall Darkroom Studio", [("Applications/Darkroom Studio.AppImage", 164, False),
                                       (".config/darkroom-studio", 3, False)]),
    (44, "Smart Scan clean-up", [("Videos/Test render.mov", 1210, True)]),
    (83, "Smart Scan clean-up", [(".gradle/caches/modules-1", 480, False), (".cache/thumbnails/normal", 74, False)]),
]


class Home:
    def __init__(self, folder: Path) -> None:
        self.folder = folder
        self.count = 0
        self.random = random.Random(7)

    def path(self, name: str) -> Path:
        path = self.folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        return path

    def text(self, name: str, text: str, mode: int = 0o644) -> Path:
        path = self.path(name)
        path.write_text(text)
        path.chmod(mode)
        return path

    def reserve(self, name: str, size: int, days: float = 1, head: bytes = b"") -> None:
        """No two files made without `size` being asked for exactly are of one size, so none is a duplicate."""
        path = self.path(name)
        with path.open("wb") as file:
            file.write(head)
            os.posix_fallocate(file.fileno(), 0, size)
        self.age(path, days)

    def distinct(self, name: str, megabytes: float, days: float = 1) -> None:
        self.count += 1
        self.reserve(name, int(megabytes * MB) + 4096 * self.count, days)

    def age(self, path: Path, days: float) -> None:
        then = datetime.now().timestamp() - days * 86400
        os.utime(path, (then, then))

    def desktop_entry(self, name: str, title: str, command: str, folder: str = ".local/share/applications",
                      extra: str = "") -> None:
        self.text(f"{folder}/{name}.desktop",
                  f"[Desktop Entry]\nType=Application\nName={title}\nExec={command}\nIcon={name}\n{extra}")

    def icon(self, name: str, colour: str, shape: str) -> None:
        self.text(f".local/share/icons/hicolor/scalable/apps/{name}.svg",
                  '<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 64 64">'
                  f'<rect width="64" height="64" rx="14" fill="{colour}"/>{shape}</svg>')


def add_files(home: Home) -> None:
    for folder, megabytes in CACHES.items():
        for part in range(4):
            home.distinct(f".cache/{folder}/{part:02x}", megabytes / 4, part)
    for name, megabytes, days in FILES:
        home.distinct(name, megabytes, days)
    for first, second, megabytes in DUPLICATES:
        home.reserve(first, megabytes * MB, 200)
        home.reserve(second, megabytes * MB, 190)
    for number in range(60):
        home.distinct(f"Pictures/2025 Coast/IMG_{2400 + number}.jpg", 2 + home.random.random() * 3, 300 - number)
        home.distinct(f"Music/Albums/Track {number + 1:02}.flac", 14 + home.random.random() * 9, 600)
    for number in range(400):
        home.text(f"Projects/weather-map/src/part{number % 20}/unit{number}.rs", "// Made for pictures.\n" * 40)
    home.text("Projects/weather-map/target/CACHEDIR.TAG", "Signature: 8a477f597d28d172789f06886806bc55\n")
    home.text(".local/share/Trash/info/Holiday slideshow.mp4.trashinfo",
              "[Trash Info]\nPath=Videos/Holiday%20slideshow.mp4\nDeletionDate=2026-01-02T03:04:05\n")


def add_programs(home: Home) -> None:
    appimage = b"\x7fELF\x02\x01\x01\x00AI\x02"
    for name, title, colour, shape, size in [
        ("inkwell", "Inkwell", "#ef6c33", '<circle cx="32" cy="32" r="15" fill="#fff"/>', 118),
        ("orbit-notes", "Orbit Notes", "#3b82f6", '<path d="M18 20h28v6H18zM18 32h20v6H18z" fill="#fff"/>', 92),
        ("tidepool", "Tidepool", "#0f9f8f", '<path d="M12 40q10-16 20 0t20 0v12H12z" fill="#fff"/>', 75),
    ]:
        file = f"Applications/{title}.AppImage"
        home.reserve(file, size * MB, 30, appimage)
        home.path(file).chmod(0o755)
        home.desktop_entry(name, title, f'"{home.folder / file}" %F')
        home.icon(name, colour, shape)
        home.text(f".config/{name}/settings.ini", "[window]\nwidth=1200\n")
    for name, title in [("org.example.Chess", "Grand Chess"), ("org.example.Player", "Sunset Player")]:
        flatpak = f".local/share/flatpak/app/{name}/current/active"
        home.distinct(f"{flatpak}/files/bin/program", 40)
        home.text(f"{flatpak}/metadata", "[Application]\n")
        home.desktop_entry(name, title, f"flatpak run {name}", ".local/share/flatpak/exports/share/applications",
                           f"X-Flatpak={name}\n")


def add_startup(home: Home) -> None:
    wants = home.path(".config/systemd/user/default.target.wants/x").parent
    for name, command in [("file-sync", "/usr/bin/file-sync serve"), ("photo-index", "/usr/bin/photo-index --idle")]:
        unit = home.text(f".config/systemd/user/{name}.service",
                         f"[Service]\nExecStart={command}\n[Install]\nWantedBy=default.target\n")
        if name == "file-sync":
            (wants / unit.name).symlink_to(f"../{unit.name}")
    home.desktop_entry("orbit-notes", "Orbit Notes", "orbit-notes --tray", ".config/autostart")
    home.desktop_entry("cloud-files", "Cloud Files", "cloud-files --background", ".config/autostart", "Hidden=true\n")


def iso(time: datetime) -> str:
    return time.strftime("%Y-%m-%dT%H:%M:%SZ")


def add_history(home: Home, now: datetime) -> None:
    records = []
    for days, title, items in CLEANUPS:
        moved = []
        for original, megabytes, restored in items:
            name = os.path.basename(original)
            trashed = home.folder / ".local/share/Trash/files" / name
            if not restored:
                home.text(f".local/share/Trash/files/{name}", "in the Trash")
                home.text(f".local/share/Trash/info/{name}.trashinfo",
                          f"[Trash Info]\nPath={home.folder / original}\nDeletionDate=2026-01-02T03:04:05\n")
            moved.append({"original": str(home.folder / original), "trashed": str(trashed),
                          "size": megabytes * MB, "restored": restored})
        records.append({"id": str(uuid.UUID(int=home.random.getrandbits(128), version=4)).upper(),
                        "date": iso(now - timedelta(days=days, hours=3)), "title": title, "items": moved,
                        "failed": 1 if days == 2 else 0})
    home.text(".local/share/Orlen/history.json", json.dumps(records))


def add_snapshots(home: Home, now: datetime) -> None:
    """Twelve weeks in which the disk filled up to where it really is."""
    disk = os.statvfs(home.folder)
    total, free = disk.f_blocks * disk.f_frsize, disk.f_bavail * disk.f_frsize
    growth = {"apps": (11 * GB, 9), "photos": (16 * GB, 60), "media": (42 * GB, 85), "documents": (6 * GB, 4),
              "developer": (14 * GB, 38), "system": (24 * GB, -2), "caches": (9 * GB, 22)}
    snapshots = []
    for days in range(84, -1, -3):
        unsteady = int(1.6 * GB * math.sin(days / 5) + home.random.random() * 0.5 * GB) if days else 0
        snapshots.append({
            "date": iso(now - timedelta(days=days, hours=1)), "free": free + days * 219 * MB + unsteady, "total": total,
            "cats": {name: size - days * daily * MB for name, (size, daily) in growth.items()}})
    home.text(".local/share/Orlen/scans.json", json.dumps(snapshots))


def write_png(path: Path, width: int, rows: list) -> None:
    def chunk(kind: bytes, data: bytes) -> bytes:
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))
    header = struct.pack(">IIBBBBB", width, len(rows), 8, 2, 0, 0, 0)
    data = zlib.compress(b"".join(b"\0" + bytes(row) for row in rows), 6)
    path.write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", data) + chunk(b"IEND", b""))


def landscape(path: Path, seed: int, shift: int = 0) -> None:
    """A sky that changes its colour downwards, a sun, and three rows of hills."""
    pick = random.Random(seed)
    width, height = 320, 240
    top, low = ([pick.randrange(*part) for _ in range(3)] for part in ((60, 190), (150, 250)))
    sun = (pick.uniform(0.2, 0.8) * width + shift, pick.uniform(0.15, 0.35) * height, pick.uniform(14, 24))
    hills = [(0.5 + 0.15 * n, pick.uniform(0.03, 0.1), pick.uniform(1, 3), pick.uniform(0, 6),
              bytes(pick.randrange(30, 130) for _ in range(3))) for n in range(3)]
    edges = [[height * (base + bend * math.sin(waves * math.pi * (x + shift) / width + phase))
              for base, bend, waves, phase, _ in hills] for x in range(width)]
    rows = []
    for y in range(height):
        sky = bytes(int(a + (b - a) * y / height) for a, b in zip(top, low))
        row = bytearray(sky * width)
        for x in range(width):
            if math.hypot(x - sun[0], y - sun[1]) < sun[2]:
                row[3 * x:3 * x + 3] = b"\xff\xf0\xc0"
            for edge, hill in zip(edges[x], hills):
                if y > edge:
                    row[3 * x:3 * x + 3] = hill[4]
        rows.append(row)
    write_png(path, width, rows)


def blocks(path: Path, width: int, height: int, ground: tuple, parts: list) -> None:
    """A picture of rectangles: of a page or of a screen."""
    rows = [bytearray(bytes(ground) * width) for _ in range(height)]
    for left, top, right, bottom, colour in parts:
        for y in range(int(top), int(bottom)):
            rows[y][3 * int(left):3 * int(right)] = bytes(colour) * (int(right) - int(left))
    write_png(path, width, rows)


def add_photos(home: Home) -> None:
    """Pictures in folders that are named as the kinds of findings that they stand for."""
    folder = home.path("Pictures/Samples/photoDuplicates/x").parent.parent
    for kind in ("photoDuplicates", "screenshots", "receipts", "blurry"):
        (folder / kind).mkdir(parents=True, exist_ok=True)
    for scene in range(5):
        for take in ("keep", "1", "2")[:2 + scene % 2]:
            shift = 0 if take == "keep" else 6 * int(take)
            landscape(folder / f"photoDuplicates/IMG_{3100 + scene}-{take}.png", scene, shift)
    for number in range(6):
        tiles = [(76 + 80 * (n % 3), 27 + 76 * (n // 3), 146 + 80 * (n % 3), 90 + 76 * (n // 3),
                  [home.random.randrange(90, 240) for _ in range(3)]) for n in range(9)]
        blocks(folder / f"screenshots/Screenshot from 2026-0{number + 1}-14.png", 320, 250, (252, 252, 254),
               [(0, 0, 64, 250, (233, 236, 241)), *tiles])
    for number in range(4):
        lines = [(40, 30 + 18 * n, 40 + home.random.randrange(90, 160), 35 + 18 * n, (96, 96, 102)) for n in range(15)]
        blocks(folder / f"receipts/Scan {number + 1}.png", 240, 320, (246, 244, 237), lines)
    for number in range(3):
        landscape(folder / f"blurry/DSC_{510 + number}.png", 40 + number)


def main() -> int:
    home = Home(Path(sys.argv[1]).resolve())
    if home.folder.exists() and any(home.folder.iterdir()):
        print(f"{home.folder} is not empty", file=sys.stderr)
        return 1
    now = datetime.now(timezone.utc)
    for add in (add_files, add_programs, add_startup, add_photos):
        add(home)
    add_history(home, now)
    add_snapshots(home, now)
    return 0


if __name__ == "__main__":
    sys.exit(main())
