-- Ports of a user's own, by their positions in degrees.
CREATE TABLE own_places (
    owner TEXT NOT NULL,
    ppi TEXT NOT NULL,
    ppn TEXT NOT NULL,
    xc REAL NOT NULL,
    yc REAL NOT NULL,
    PRIMARY KEY (owner, ppi),
    FOREIGN KEY (owner) REFERENCES own_lists (owner)
) STRICT, WITHOUT ROWID;
