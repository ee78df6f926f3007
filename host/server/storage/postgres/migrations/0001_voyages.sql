-- Ids of every kind come from one sequence, so that no id names two things and none is given out twice. Texts are
-- compared by their bytes.
CREATE SEQUENCE ids AS BIGINT START WITH 1000001 NO CYCLE;

CREATE TABLE categories (
    owner TEXT COLLATE "C" NOT NULL,
    ci TEXT COLLATE "C" NOT NULL,
    cn TEXT COLLATE "C" NOT NULL,
    cd INTEGER NOT NULL DEFAULT 0 CHECK (cd IN (0, 1, 2)),
    PRIMARY KEY (owner, ci)
);

CREATE TABLE voyages (
    owner TEXT COLLATE "C" NOT NULL,
    vi TEXT COLLATE "C" NOT NULL,
    ci TEXT COLLATE "C" NOT NULL,
    vn TEXT COLLATE "C" NOT NULL,
    vsi TEXT COLLATE "C" NOT NULL DEFAULT '',
    vsn TEXT COLLATE "C" NOT NULL DEFAULT '',
    vsmsi INTEGER NOT NULL DEFAULT 0,
    vr BOOLEAN NOT NULL DEFAULT FALSE,
    va BOOLEAN NOT NULL DEFAULT FALSE,
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
);
CREATE INDEX voyages_by_category ON voyages (owner, ci);

CREATE TABLE port_calls (
    owner TEXT COLLATE "C" NOT NULL,
    vi TEXT COLLATE "C" NOT NULL,
    lon INTEGER NOT NULL,
    ppi TEXT COLLATE "C" NOT NULL,
    ppn TEXT COLLATE "C" NOT NULL,
    pp TEXT COLLATE "C" NOT NULL,
    psp DOUBLE PRECISION NOT NULL,
    pw DOUBLE PRECISION NOT NULL,
    apt DOUBLE PRECISION NOT NULL,
    PRIMARY KEY (owner, vi, lon),
    FOREIGN KEY (owner, vi) REFERENCES voyages (owner, vi)
);

CREATE TABLE position_books (
    owner TEXT COLLATE "C" NOT NULL,
    pbi TEXT COLLATE "C" NOT NULL,
    vi TEXT COLLATE "C" NOT NULL,
    eta TEXT COLLATE "C" NOT NULL,
    PRIMARY KEY (owner, pbi),
    UNIQUE (owner, vi),
    FOREIGN KEY (owner, vi) REFERENCES voyages (owner, vi)
);

CREATE TABLE book_rows (
    owner TEXT COLLATE "C" NOT NULL,
    pbi TEXT COLLATE "C" NOT NULL,
    lon INTEGER NOT NULL,
    psn TEXT COLLATE "C" NOT NULL,
    xc DOUBLE PRECISION NOT NULL,
    yc DOUBLE PRECISION NOT NULL,
    psr TEXT COLLATE "C" NOT NULL,
    pli INTEGER NOT NULL,
    psp DOUBLE PRECISION NOT NULL,
    pst INTEGER NOT NULL,
    PRIMARY KEY (owner, pbi, lon),
    FOREIGN KEY (owner, pbi) REFERENCES position_books (owner, pbi)
);

CREATE TABLE ais_times (
    owner TEXT COLLATE "C" NOT NULL,
    vi TEXT COLLATE "C" NOT NULL,
    place INTEGER NOT NULL,
    time TEXT COLLATE "C" NOT NULL,
    PRIMARY KEY (owner, vi, place),
    UNIQUE (owner, vi, time),
    FOREIGN KEY (owner, vi) REFERENCES voyages (owner, vi)
);
