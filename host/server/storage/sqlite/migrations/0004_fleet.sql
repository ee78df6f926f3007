-- Who changes an owner's list holds its row, so that two at once do not bring it beyond its limit.
CREATE TABLE own_lists (
    owner TEXT NOT NULL PRIMARY KEY
) STRICT, WITHOUT ROWID;

CREATE TABLE fleet (
    owner TEXT NOT NULL,
    vsi TEXT NOT NULL,
    vsn TEXT NOT NULL,
    vsmsi INTEGER NOT NULL,
    vsimo INTEGER NOT NULL,
    vscs TEXT NOT NULL,
    vst TEXT NOT NULL,
    vsl REAL NOT NULL,
    vsp REAL NOT NULL,
    PRIMARY KEY (owner, vsi),
    FOREIGN KEY (owner) REFERENCES own_lists (owner)
) STRICT, WITHOUT ROWID;
