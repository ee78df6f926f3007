-- A port call has no id of its own, so the object is a text without a foreign key; the server checks it. It may be longer
-- than a row of an index, which therefore holds its digest.
CREATE TABLE remarks (
    owner TEXT COLLATE "C" NOT NULL,
    type INTEGER NOT NULL CHECK (type IN (2, 3, 4)),
    objectid TEXT COLLATE "C" NOT NULL,
    seq INTEGER NOT NULL CHECK (seq >= 1),
    subject TEXT COLLATE "C" NOT NULL,
    body TEXT COLLATE "C" NOT NULL,
    cdate BIGINT NOT NULL,
    udate BIGINT NOT NULL
);
CREATE UNIQUE INDEX remarks_by_object ON remarks (owner, type, md5(objectid), seq);
