-- Ids of every kind come from one counter, so that no id names two things and none is given out twice.
CREATE TABLE next_id (
    only_row INTEGER PRIMARY KEY CHECK (only_row = 1),
    value INTEGER NOT NULL
) STRICT;
INSERT INTO next_id (only_row, value) VALUES (1, 1000001);

CREATE TABLE categories (
    owner TEXT NOT NULL,
    ci TEXT NOT NULL,
    cn TEXT NOT NULL,
    cd INTEGER NOT NULL DEFAULT 0 CHECK (cd IN (0, 1, 2)),
    PRIMARY KEY (owner, ci)
) STRICT, WITHOUT ROWID;

CREATE TABLE voyages (
    owner TEXT NOT NULL,
    vi TEXT NOT NULL,
    ci TEXT NOT NULL,
    vn TEXT NOT NULL,
    vsi TEXT NOT NULL DEFAULT '',
    vsn TEXT NOT NULL DEFAULT '',
    vsmsi INTEGER NOT NULL DEFAULT 0,
    vr INTEGER NOT NULL DEFAULT 0 CHECK (vr IN (0, 1)),
    va INTEGER NOT NULL DEFAULT 0 CHECK (va IN (0, 1)),
    vfn INTEGER NOT NULL DEFAULT 0,
    vff INTEGER NOT NULL DEFAULT 0,
    vfa INTEGER NOT NULL DEFAULT 0,
    vdn INTEGER NOT NULL DEFAULT 0,
    vda INTEGER NOT NULL DEFAULT 0,
    vwn INTEGER NOT NULL DEFAULT 0,
    vwa INTEGER NOT NULL DEFAULT 0,
    vd INTEGER NOT NULL DEFAULT 0 CHECK (vd IN (0, 1, 2)),
    PRIMARY KEY (owner, vi),
    FOREIGN KEY (owner, ci) REFERENCES categories (owner, ci)
) STRICT, WITHOUT ROWID;
CREATE INDEX voyages_by_category ON voyages (owner, ci);

CREATE TABLE port_calls (
    owner TEXT NOT NULL,
    vi TEXT NOT NULL,
    lon INTEGER NOT NULL,
    ppi TEXT NOT NULL,
    ppn TEXT NOT NULL,
    pp TEXT NOT NULL,
    psp REAL NOT NULL,
    pw REAL NOT NULL,
    apt REAL NOT NULL,
    PRIMARY KEY (owner, vi, lon),
    FOREIGN KEY (owner, vi) REFERENCES voyages (owner, vi)
) STRICT, WITHOUT ROWID;

CREATE TABLE position_books (
    owner TEXT NOT NULL,
    pbi TEXT NOT NULL,
    vi TEXT NOT NULL,
    eta TEXT NOT NULL,
    PRIMARY KEY (owner, pbi),
    UNIQUE (owner, vi),
    FOREIGN KEY (owner, vi) REFERENCES voyages (owner, vi)
) STRICT, WITHOUT ROWID;

CREATE TABLE book_rows (
    owner TEXT NOT NULL,
    pbi TEXT NOT NULL,
    lon INTEGER NOT NULL,
    psn TEXT NOT NULL,
    xc REAL NOT NULL,
    yc REAL NOT NULL,
    psr TEXT NOT NULL,
    pli INTEGER NOT NULL,
    psp REAL NOT NULL,
    pst INTEGER NOT NULL,
    PRIMARY KEY (owner, pbi, lon),
    FOREIGN KEY (owner, pbi) REFERENCES position_books (owner, pbi)
) STRICT, WITHOUT ROWID;

CREATE TABLE ais_times (
    owner TEXT NOT NULL,
    vi TEXT NOT NULL,
    place INTEGER NOT NULL,
    time TEXT NOT NULL,
    PRIMARY KEY (owner, vi, place),
    UNIQUE (owner, vi, time),
    FOREIGN KEY (owner, vi) REFERENCES voyages (owner, vi)
) STRICT, WITHOUT ROWID;
