"""How each window is opened with keys from the main window, and closed again."""

DATABASE = ["ctrl+d", "Return"]
EDITED = [*DATABASE, "ctrl+e", "Tab"]

# name: the beginning of its title, the keys that open it, the keys that leave only the main window.
# "=OTHER" types the path of another database.
WINDOWS = {
    "order": ("Order", [], []),
    "database": ("Database of material", EDITED, ["ctrl+w"]),
    "material": ("Edit parameters", [*EDITED, "Down", "Right", "Down", "F4", "Return"], ["ctrl+w", "ctrl+w"]),
    "merge": ("Merge", [*EDITED, "alt+f", "m", "=OTHER", "Return"], ["ctrl+w", "ctrl+w"]),
    "boms": ("Bill of materials", ["ctrl+b"], ["ctrl+w"]),
    "bom": ("Bill of materials [", ["ctrl+b", "ctrl+Home", "Down", "Down", "Return"], ["ctrl+w", "ctrl+w"]),
    "firms": ("", ["alt+t", "o"], ["ctrl+w"]),
    "config": ("Configuration", ["alt+t", "c"], ["ctrl+w"]),
    "template": ("", ["alt+t", "m"], ["Escape"]),
    "log": ("Log", ["alt+w", "l"], ["alt+F4"]),
    "errors": ("Errors", ["alt+w", "e"], ["alt+F4"]),
    "about": ("About", ["alt+h", "a"], ["Escape"]),
    "add": ("", ["Insert"], ["Escape"]),
}
